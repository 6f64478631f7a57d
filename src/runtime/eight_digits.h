#pragma once

#include <array>
#include <cstdint>
#include <cstring>
#include <limits>

namespace tavimor {

/// What the scanners of numerals share: eight digits at a time in one word, and the powers of ten. For machines whose
/// words have the first character in the lowest byte.

/// A whole number up to 2^53 and a power of ten up to 10^22 are both exact doubles, so that one multiplication or
/// division rounds the numeral correctly (Clinger, How to Read Floating Point Numbers Accurately, 1990).
inline constexpr std::uint64_t kLargestExactWhole = std::uint64_t{1} << std::numeric_limits<double>::digits;
inline constexpr std::array<double, 23> kExactPowersOfTen = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                             1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                                             1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
inline constexpr std::array<std::uint64_t, 9> kPowersOfTen = {1,      10,      100,      1000,     10000,
                                                              100000, 1000000, 10000000, 100000000};

/// Eight characters as one word, each less the character '0': a digit becomes its value, anything else more than 9.
inline std::uint64_t eightCharacters(const char* at) {
  std::uint64_t word = 0;
  std::memcpy(&word, at, sizeof word);
  return word ^ 0x3030303030303030;
}

/// Marks the bytes above 9, those that were no digits, in their high bits. Below the first mark all are exact: a byte
/// can carry only into those that stand for later characters.
inline std::uint64_t marksOfOthers(std::uint64_t word) {
  return ((word + 0x7676767676767676) | word) & 0x8080808080808080;
}

/// Neighbouring digits are joined to pairs, the pairs to fours, the fours to eight, each step within one word.
inline std::uint64_t eightDigitsValue(std::uint64_t word) {
  constexpr std::uint64_t pairs = 0x000000FF000000FF;
  word = word * 10 + (word >> 8);
  return ((word & pairs) * (100 + (std::uint64_t{1000000} << 32)) +
          ((word >> 16) & pairs) * (1 + (std::uint64_t{10000} << 32))) >>
         32;
}

/// The value of the first `count` digits of a word, 0 to 8: zeros are shifted in before them, in two steps, since 64
/// places at once are not defined.
inline std::uint64_t firstDigitsValue(std::uint64_t word, int count) {
  return eightDigitsValue(word << 4 * (8 - count) << 4 * (8 - count));
}

}  // namespace tavimor
