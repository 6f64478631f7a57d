#pragma once

#include <bit>
#include <cstdint>

#include "platform/sse2.h"

namespace tavimor {

/// Sixteen digits, 0 to 9, a byte each; the first one is in the lowest byte of `first`.
struct SixteenDigits {
  std::uint64_t first, second;

  /// How many there are up to the last one that is not zero. One at least is not.
  int significant() const {
    return second != 0 ? 16 - (std::countl_zero(second) >> 3) : 8 - (std::countl_zero(first) >> 3);
  }

  /// Those from digit n = 0..15 on, with zeros behind the last one.
  SixteenDigits from(int n) const {
    if (n == 0) return *this;
    if (n >= 8) return {second >> 8 * (n - 8), 0};
    return {first >> 8 * n | second << 8 * (8 - n), second >> 8 * n};
  }
};

#ifdef TAVIMOR_HAS_SSE2

/// The digits of upper * 10^8 + lower, both below 10^8. Eights are divided into fours, these into pairs, and these into
/// digits, all at once; the first of two is in the lower half. Instead of a division by 10^n there is a product with a
/// power of two over 10^n, rounded up: too little is added to tell below 10^(2 n).
inline SixteenDigits sixteenDigits(std::uint32_t upper, std::uint32_t lower) {
  const __m128i eights = _mm_set_epi32(0, static_cast<int>(lower), 0, static_cast<int>(upper));
  const __m128i upperFours = _mm_srli_epi64(_mm_mul_epu32(eights, _mm_set1_epi64x(3518437209)), 45);
  const __m128i lowerFours = _mm_sub_epi32(eights, _mm_mul_epu32(upperFours, _mm_set1_epi64x(10000)));
  const __m128i fours = _mm_or_si128(upperFours, _mm_slli_epi64(lowerFours, 32));

  const __m128i hundreds = _mm_srli_epi32(_mm_mulhi_epu16(fours, _mm_set1_epi32(5243)), 3);
  const __m128i belowHundred = _mm_sub_epi32(fours, _mm_mullo_epi16(hundreds, _mm_set1_epi32(100)));
  const __m128i pairs = _mm_or_si128(hundreds, _mm_slli_epi32(belowHundred, 16));

  const __m128i tens = _mm_mulhi_epu16(pairs, _mm_set1_epi16(6554));
  const __m128i ones = _mm_sub_epi16(pairs, _mm_mullo_epi16(tens, _mm_set1_epi16(10)));
  const __m128i digits = _mm_or_si128(tens, _mm_slli_epi16(ones, 8));
  return {static_cast<std::uint64_t>(_mm_cvtsi128_si64(digits)),
          static_cast<std::uint64_t>(_mm_cvtsi128_si64(_mm_unpackhi_epi64(digits, digits)))};
}

#else

inline std::uint64_t eightDigits(std::uint32_t number) {
  std::uint64_t digits = 0;
  for (int n = 0; n < 8; ++n, number /= 10) digits = digits << 8 | number % 10;
  return digits;
}

inline SixteenDigits sixteenDigits(std::uint32_t upper, std::uint32_t lower) {
  return {eightDigits(upper), eightDigits(lower)};
}

#endif

}  // namespace tavimor
