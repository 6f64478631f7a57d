#include "runtime/number_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "runtime/fifteen_digits.h"

namespace tavimor {

namespace {

constexpr int kSignificantDigits = 15;  // the most that always survive text -> double -> text:
static_assert(std::numeric_limits<double>::digits10 == kSignificantDigits);

constexpr std::size_t kMostCharacters = kRoomForDecimal + 2;  // a sign, a blank

// In the form of writtenNumber, by the library, for any finite magnitude but 0.
char* putByLibrary(double magnitude, char* to) {
  char* const end =
      std::to_chars(to, to + kMostCharacters, magnitude, std::chars_format::general, kSignificantDigits).ptr;
  std::replace(to, end, 'e', 'E');
  return to[0] == '0' ? std::copy(to + 1, end, to) : end;
}

char* putWord(std::string_view word, char* to) { return to + word.copy(to, kMostCharacters); }

// A number without its sign, in the form of writtenNumber. Returns the end.
char* putMagnitude(double magnitude, char* to) {
  const bool isUsual = magnitude >= kLeastMagnitude && magnitude < kMostMagnitude;
  if (isUsual) return putDecimal(fifteenDigits(magnitude), to);
  if (std::isnan(magnitude)) return putWord("NAN", to);
  if (std::isinf(magnitude)) return putWord("INF", to);
  return magnitude == 0.0 ? putWord("0", to) : putByLibrary(magnitude, to);
}

// In the form of writtenNumber, at most kMostCharacters.
char* putWritten(double value, char* to) {
  if (value < 0) *to++ = '-';
  return putMagnitude(std::fabs(value), to);
}

// In the form of printedNumber.
char* putPrinted(double value, char* to) {
  *to = value < 0 ? '-' : ' ';
  char* const end = putMagnitude(std::fabs(value), to + 1);
  *end = ' ';
  return end + 1;
}

std::string inPrintForm(std::string text) {
  if (!text.starts_with('-')) text.insert(text.begin(), ' ');
  text.push_back(' ');
  return text;
}

}  // namespace

std::string numberText(double value) {
  std::string text = writtenNumber(value);
  if (const std::size_t sign = text.starts_with('-') ? 1 : 0; text[sign] == '.') text.insert(sign, 1, '0');
  return text;
}

std::string numberText(Long value) { return std::to_string(value); }

std::string writtenNumber(double value) {
  std::array<char, kMostCharacters> buffer;
  return {buffer.data(), putWritten(value, buffer.data())};
}
std::string writtenNumber(Long value) { return numberText(value); }

std::string printedNumber(double value) {
  std::array<char, kMostCharacters> buffer;
  return {buffer.data(), putPrinted(value, buffer.data())};
}

std::string_view printedLines(std::span<const double> values, std::vector<char>& room) {
  constexpr std::string_view lineEnd = "\r\n";
  room.resize(std::max(room.size(), values.size() * (kMostCharacters + lineEnd.size())));
  char* end = room.data();
  for (const double value : values) end = std::copy(lineEnd.begin(), lineEnd.end(), putPrinted(value, end));
  return {room.data(), static_cast<std::size_t>(end - room.data())};
}

std::string printedNumber(Long value) { return inPrintForm(writtenNumber(value)); }

}  // namespace tavimor
