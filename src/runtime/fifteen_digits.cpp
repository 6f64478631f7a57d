#include "runtime/fifteen_digits.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstring>

#include "runtime/eight_digits.h"
#include "runtime/sixteen_digits.h"

namespace tavimor {

namespace {

constexpr int kDigits = 15;
constexpr std::uint64_t kTooMany = 1000000000000000;  // 10^15

struct Halves {
  double high, low;
};

// Of at most 26 bits each, so that products of halves are exact.
Halves halvesOf(double x) {
  const double shifted = 134217729.0 * x;  // 2^27 + 1
  const double high = shifted - (shifted - x);
  return {high, x - high};
}

Halves exactProduct(double a, double b) {
  const double product = a * b;
  const Halves x = halvesOf(a), y = halvesOf(b);
  return {product, ((x.high * y.high - product) + x.high * y.low + x.low * y.high) + x.low * y.low};
}

// To the nearest whole number, halves to the even one; below 2^53.
std::int64_t rounded(const Halves& sum) {
  const auto whole = static_cast<std::int64_t>(sum.high);
  const double beyondHalf = (sum.high - static_cast<double>(whole)) - 0.5;
  const bool isOdd = whole % 2 == 1;
  const bool up = beyondHalf > 0.0 || (beyondHalf == 0.0 && (sum.low > 0.0 || (sum.low == 0.0 && isOdd)));
  return whole + (up ? 1 : 0);
}

// As the product of doubles would be rounded, but where it is so near to a half that its own rounding could tell.
std::int64_t roundedProduct(double a, double b) {
  constexpr double mostRounding = 0x1p-4;  // below 2^50
  const double product = a * b;
  const auto whole = static_cast<std::int64_t>(product);
  const double beyondHalf = (product - static_cast<double>(whole)) - 0.5;
  if (std::fabs(beyondHalf) > mostRounding) return whole + (beyondHalf > 0.0 ? 1 : 0);
  return rounded(exactProduct(a, b));
}

constexpr std::array<double, 20> kPowersFromTenThousandth = {
    1e-4, 1e-3, 1e-2, 1e-1, 1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};

// Tells from a power of two whether the next power of ten is reached as well.
int decimalExponent(double magnitude) {
  const int binary = static_cast<int>(std::bit_cast<std::uint64_t>(magnitude) >> 52) - 1023;
  const int least = (binary * 78913) >> 18;  // times log10 2, rounded down
  const int next = least + 1;
  const int place = next + 4;
  return magnitude >= kPowersFromTenThousandth[static_cast<std::size_t>(place)] ? next : least;
}

void putEight(std::uint64_t digits, char* to) {
  const std::uint64_t characters = digits + 0x3030303030303030;
  if constexpr (std::endian::native == std::endian::little)
    std::memcpy(to, &characters, sizeof characters);
  else
    for (int n = 0; n < 8; ++n) to[n] = static_cast<char>(characters >> 8 * n);
}

void putSixteen(const SixteenDigits& digits, char* to) {
  putEight(digits.first, to);
  putEight(digits.second, to + 8);
}

}  // namespace

FifteenDigits fifteenDigits(double magnitude) {
  const int exponent = decimalExponent(magnitude);
  const auto digits = static_cast<std::uint64_t>(roundedProduct(magnitude, kExactPowersOfTen[kDigits - 1 - exponent]));
  if (digits < kTooMany) return {digits, exponent};
  return {kTooMany / 10, exponent + 1};  // nines that were rounded up
}

// Sixteen digits are written wherever some are needed: what follows is written over the others.
char* putDecimal(FifteenDigits number, char* to) {
  const SixteenDigits digits = sixteenDigits(static_cast<std::uint32_t>(number.digits / kPowersOfTen[7]),
                                             static_cast<std::uint32_t>(number.digits % kPowersOfTen[7] * 10));
  const int significant = digits.significant(), whole = std::max(number.exponent + 1, 0);  // digits before the point
  if (whole > 0) putSixteen(digits, to);
  to += whole;
  if (whole >= significant) return to;
  *to++ = '.';
  std::fill_n(to, 3, '0');  // as many as can follow the point
  to += std::max(-number.exponent - 1, 0);
  putSixteen(digits.from(whole), to);
  return to + (significant - whole);
}

}  // namespace tavimor
