#include "runtime/print_lines.h"

#include <bit>
#include <cstring>
#include <string_view>

#include "runtime/eight_digits.h"
#include "runtime/numeral.h"

namespace tavimor {

namespace {

constexpr std::string_view kLineEnd = " \r\n";
constexpr std::ptrdiff_t kLongestUsualLine = 21;  // a sign, a digit, a point, fifteen digits, the line's end

bool isLineEnd(const char* at) { return std::memcmp(at, kLineEnd.data(), kLineEnd.size()) == 0; }

// The number of a line of the usual form, and its end; null for any other form. Usual are a sign or a blank, one digit
// at most before the point and eight to fifteen behind it, as most numbers of 15 digits have. Its few tests nearly
// always go one way, which a processor foresees; the digits are not counted one by one.
const char* readUsualLine(const char* at, double& number) {
  const char sign = at[0];
  const int before = at[1] == '.' ? 0 : 1;
  const char* fraction = at + 2 + before;
  const std::uint64_t first = eightCharacters(fraction), second = eightCharacters(fraction + 8);
  const std::uint64_t endMark = marksOfOthers(second);
  const unsigned digit = before == 0 ? 0 : static_cast<unsigned char>(at[1] - '0');
  if (marksOfOthers(first) != 0 || endMark == 0 || fraction[-1] != '.' || digit > 9 || (sign != ' ' && sign != '-'))
    return nullptr;
  const int count = std::countr_zero(endMark) / 8;
  const char* end = fraction + 8 + count;
  const std::uint64_t whole =
      (digit * kPowersOfTen[8] + eightDigitsValue(first)) * kPowersOfTen[count] + firstDigitsValue(second, count);
  if (!isLineEnd(end) || whole > kLargestExactWhole) return nullptr;
  const double magnitude = static_cast<double>(whole) / kExactPowersOfTen[8 + count];
  number = sign == '-' ? -magnitude : magnitude;
  return end + kLineEnd.size();
}

const char* readAnyLine(const char* at, const char* last, double& number) {
  const char* first = *at == ' ' ? at + 1 : at;
  const Numeral numeral = scanNumeral(first, last);
  if (numeral.end == first || last - numeral.end < std::ssize(kLineEnd) || !isLineEnd(numeral.end)) return nullptr;
  number = numeral.value;
  return numeral.end + kLineEnd.size();
}

const char* readLine(const char* at, const char* last, double& number) {
  if constexpr (std::endian::native == std::endian::little)
    if (last - at >= kLongestUsualLine)
      if (const char* end = readUsualLine(at, number)) return end;
  return readAnyLine(at, last, number);
}

}  // namespace

PrintLines readPrintLines(const char* first, const char* last, std::span<double> numbers) {
  PrintLines lines{first, 0};
  while (lines.count < numbers.size() && lines.end != last) {
    const char* end = readLine(lines.end, last, numbers[lines.count]);
    if (end == nullptr) break;
    lines.end = end;
    ++lines.count;
  }
  return lines;
}

}  // namespace tavimor
