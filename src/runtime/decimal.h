#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

#include "platform/sse2.h"
#include "runtime/eight_digits.h"

#ifdef TAVIMOR_HAS_SSE2

namespace tavimor {

/// Decimals in registers of 16 bytes: digits with a point before or among them, or none, 16 at most and less than 2^53
/// as one whole number. They are taken apart one by one and become numbers two at a time. Up to kBytesBeforeDecimal
/// bytes before a decimal are loaded with it.

inline constexpr std::size_t kMostDigits = 16;
inline constexpr std::ptrdiff_t kBytesBeforeDecimal = 19;
inline constexpr std::int32_t kMostInUpperEight = 90071991;
static_assert(kMostInUpperEight * kPowersOfTen[8] + (kPowersOfTen[8] - 1) < kLargestExactWhole);

/// The 16 bytes from place n on mark the last n of a register.
inline constexpr auto kMarks = [] {
  std::array<unsigned char, 2 * kMostDigits> marks{};
  for (std::size_t n = kMostDigits; n < marks.size(); ++n) marks[n] = 0xFF;
  return marks;
}();

/// What the whole number is divided by, for each count of digits behind the point: first of a number that is not
/// negative, then of a negative one, so that the sign comes with the division, that of a zero as well.
inline constexpr auto kDivisors = [] {
  std::array<std::array<double, kMostDigits + 1>, 2> divisors{};
  for (std::size_t n = 0; n <= kMostDigits; ++n) {
    divisors[0][n] = kExactPowersOfTen[n];
    divisors[1][n] = -kExactPowersOfTen[n];
  }
  return divisors;
}();

inline __m128i sixteenBytes(const void* from) { return _mm_loadu_si128(static_cast<const __m128i*>(from)); }

inline __m128i lastBytes(std::size_t count) { return sixteenBytes(kMarks.data() + count); }

/// A bit for each byte of a register that is the wanted one.
inline std::uint32_t placesOf(char wanted, __m128i bytes) {
  return static_cast<std::uint32_t>(_mm_movemask_epi8(_mm_cmpeq_epi8(bytes, _mm_set1_epi8(wanted))));
}

enum class Sign : std::size_t { Plus, Minus };

/// The digits of a decimal without its point, a byte each, and what they are divided by as one whole number.
struct Decimal {
  __m128i digits;
  double divisor;
};

/// Takes the decimal of `length` characters that ends at `end` apart. It is loaded from its end, and once more a byte
/// earlier: there the digits before the point stand where they close up to those behind it. False where there are none
/// or too many; whether they are digits is not asked yet.
inline bool takeApart(std::size_t length, const char* end, Sign sign, Decimal& decimal) {
  const __m128i earlier = sixteenBytes(end - 17);
  const auto toPoint = static_cast<std::size_t>(17 - std::bit_width(placesOf('.', earlier)));
  const std::size_t points = toPoint < length ? 1 : 0, count = length - points;
  if (count - 1 >= kMostDigits) return false;
  const __m128i isBehind = lastBytes(points == 1 ? toPoint : count);
  const __m128i text =
      _mm_or_si128(_mm_and_si128(isBehind, sixteenBytes(end - 16)), _mm_andnot_si128(isBehind, earlier));
  decimal.digits = _mm_and_si128(_mm_xor_si128(text, _mm_set1_epi8('0')), lastBytes(count));
  decimal.divisor = kDivisors[static_cast<std::size_t>(sign)][points * toPoint];
  return true;
}

/// Sixteen digits are joined to eight pairs, these to four fours. The first digit of a pair is in the lower byte: the
/// product adds ten times it to the second one in the upper byte.
inline __m128i foursOf(__m128i digits) {
  const __m128i pairs = _mm_srli_epi16(_mm_mullo_epi16(digits, _mm_set1_epi16(10 * 256 + 1)), 8);
  return _mm_madd_epi16(pairs, _mm_set1_epi32(100 + (1 << 16)));
}

/// Whether all digits are some, and the whole numbers exact doubles. `eights` are the upper and the lower eight digits
/// of one decimal, then those of the other.
inline bool areGood(const Decimal& one, const Decimal& other, __m128i eights) {
  const __m128i beyondNine = _mm_subs_epu8(_mm_max_epu8(one.digits, other.digits), _mm_set1_epi8(9));
  const __m128i most = _mm_set_epi32(INT32_MAX, kMostInUpperEight, INT32_MAX, kMostInUpperEight);
  return placesOf(0, _mm_or_si128(beyondNine, _mm_cmpgt_epi32(eights, most))) == 0xFFFF;
}

/// The numbers that two decimals stand for, correctly rounded. False where one of them is none, or has another form.
inline bool numbersOf(const Decimal& one, const Decimal& other, __m128d& numbers) {
  const __m128i fours = _mm_packs_epi32(foursOf(one.digits), foursOf(other.digits));
  const __m128i eights = _mm_madd_epi16(fours, _mm_set1_epi32(10000 + (1 << 16)));
  if (!areGood(one, other, eights)) return false;
  const __m128d upper = _mm_cvtepi32_pd(_mm_shuffle_epi32(eights, _MM_SHUFFLE(3, 1, 2, 0)));
  const __m128d lower = _mm_cvtepi32_pd(_mm_shuffle_epi32(eights, _MM_SHUFFLE(2, 0, 3, 1)));
  const __m128d whole = _mm_add_pd(_mm_mul_pd(upper, _mm_set1_pd(1e8)), lower);
  numbers = _mm_div_pd(whole, _mm_set_pd(other.divisor, one.divisor));
  return true;
}

}  // namespace tavimor

#endif
