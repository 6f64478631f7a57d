#include "runtime/numeral.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>

#include "runtime/eight_digits.h"

namespace tavimor {

namespace {

constexpr int kLargestExactPower = static_cast<int>(kExactPowersOfTen.size()) - 1;
constexpr int kDigitsInWord = std::numeric_limits<std::uint64_t>::digits10;  // 19: no overflow up to here
constexpr int kExponentLimit = 100000000;  // more than a text's digits can make up for; ten times it is an int still

constexpr std::string_view kDigitsOfLargest = "179769313486232";  // as a text of 15 digits shows them

struct Digits {
  std::uint64_t whole = 0;  // the digits as one whole number, valid for up to kDigitsInWord of them
  std::ptrdiff_t count = 0;
};

bool isDigit(char c) { return c >= '0' && c <= '9'; }

const char* scanDigitByDigit(const char* at, const char* last, Digits& digits) {
  const char* const first = at;
  for (; at != last && isDigit(*at); ++at) digits.whole = digits.whole * 10 + static_cast<std::uint64_t>(*at - '0');
  digits.count += at - first;
  return at;
}

// For many digits. The few before the point go faster one by one: the processor foresees their number.
const char* scanEightByEight(const char* at, const char* last, Digits& digits) {
  if constexpr (std::endian::native == std::endian::little) {
    while (last - at >= 8) {
      const std::uint64_t word = eightCharacters(at);
      const std::uint64_t marks = marksOfOthers(word);
      if (marks == 0) {
        digits.whole = digits.whole * kPowersOfTen[8] + eightDigitsValue(word);
        digits.count += 8;
        at += 8;
        continue;
      }
      const int count = std::countr_zero(marks) / 8;
      digits.whole = digits.whole * kPowersOfTen[count] + firstDigitsValue(word, count);
      digits.count += count;
      return at + count;
    }
  }
  return scanDigitByDigit(at, last, digits);
}

const char* scanExponent(const char* at, const char* last, int& exponent) {
  if (at == last || (*at != 'E' && *at != 'e')) return at;
  const char* digit = at + 1;
  const bool negative = digit != last && *digit == '-';
  if (negative || (digit != last && *digit == '+')) ++digit;
  if (digit == last || !isDigit(*digit)) return at;
  for (; digit != last && isDigit(*digit); ++digit) exponent = std::min(exponent * 10 + (*digit - '0'), kExponentLimit);
  if (negative) exponent = -exponent;
  return digit;
}

Numeral scanWord(const char* first, const char* last) {
  constexpr std::size_t length = 3;
  const std::string_view text(first, static_cast<std::size_t>(last - first));
  const bool whole = text.size() <= length ||
                     !(isDigit(text[length]) || text[length] == '_' || (text[length] >= 'A' && text[length] <= 'Z') ||
                       (text[length] >= 'a' && text[length] <= 'z'));
  if (whole && text.starts_with("INF")) return {std::numeric_limits<double>::infinity(), first + length};
  if (whole && text.starts_with("NAN")) return {std::numeric_limits<double>::quiet_NaN(), first + length};
  return {0.0, first};
}

// The exponent that the number has in scientific notation: the power of ten of its first digit that is not zero.
long scientificExponent(const char* first, long powerOfTen, std::ptrdiff_t digitCount) {
  std::ptrdiff_t leadingZeros = 0;
  for (; *first == '0' || *first == '.'; ++first)
    if (*first == '0') ++leadingZeros;
  return powerOfTen + static_cast<long>(digitCount - leadingZeros) - 1;
}

// The digits of an unsigned numeral without the zeros at either end.
std::string significantDigits(const char* first, const char* end) {
  std::string digits;
  for (; first != end && (isDigit(*first) || *first == '.'); ++first)
    if (*first != '.' && !(digits.empty() && *first == '0')) digits += *first;
  digits.erase(digits.find_last_not_of('0') + 1);
  return digits;
}

// The text of the largest double, 1.79769313486232E+308, was rounded up to its 15 digits: as it stands it is just
// beyond the range. Whoever writes the largest double is to read it back, so all numerals up to there stand for it.
bool isTextOfLargest(const char* first, const char* end, long exponent) {
  return exponent == std::numeric_limits<double>::max_exponent10 && significantDigits(first, end) <= kDigitsOfLargest;
}

// Nothing where the number is beyond the range.
std::optional<double> roundedByLibrary(const char* first, const char* end, long powerOfTen, std::ptrdiff_t digitCount) {
  double value = 0.0;
  if (std::from_chars(first, end, value).ec != std::errc::result_out_of_range) return value;
  const long exponent = scientificExponent(first, powerOfTen, digitCount);
  if (exponent <= 0) return 0.0;
  if (isTextOfLargest(first, end, exponent)) return std::numeric_limits<double>::max();
  return std::nullopt;
}

Numeral scanUnsigned(const char* first, const char* last) {
  Digits digits;
  const char* at = scanDigitByDigit(first, last, digits);
  const std::ptrdiff_t beforePoint = digits.count;
  if (at != last && *at == '.') at = scanEightByEight(at + 1, last, digits);
  if (digits.count == 0) return scanWord(first, last);
  int exponent = 0;
  at = scanExponent(at, last, exponent);

  const long powerOfTen = exponent - static_cast<long>(digits.count - beforePoint);
  const bool exact = digits.count <= kDigitsInWord && digits.whole <= kLargestExactWhole &&
                     powerOfTen >= -kLargestExactPower && powerOfTen <= kLargestExactPower;
  if (!exact) {
    const std::optional<double> value = roundedByLibrary(first, at, powerOfTen, digits.count);
    return value ? Numeral{*value, at} : Numeral{0.0, first};
  }
  const double whole = static_cast<double>(digits.whole);
  if (powerOfTen < 0) return {whole / kExactPowersOfTen[-powerOfTen], at};
  return {whole * kExactPowersOfTen[powerOfTen], at};
}

}  // namespace

Numeral scanNumeral(const char* first, const char* last) {
  const bool hasSign = first != last && (*first == '-' || *first == '+');
  const char* magnitude = hasSign ? first + 1 : first;
  const Numeral numeral = scanUnsigned(magnitude, last);
  if (numeral.end == magnitude) return {0.0, first};
  return {hasSign && *first == '-' ? -numeral.value : numeral.value, numeral.end};
}

}  // namespace tavimor
