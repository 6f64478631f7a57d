#include "runtime/decimal_lines.h"

#include <array>
#include <bit>
#include <cstdint>

#include "platform/sse2.h"
#include "runtime/eight_digits.h"

namespace tavimor {

#ifdef TAVIMOR_HAS_SSE2

namespace {

constexpr std::size_t kMostDigits = 16;          // a register holds as many
constexpr std::ptrdiff_t kBytesBefore = 19;      // loaded before an empty line
constexpr std::ptrdiff_t kBytesOfTwoLines = 48;  // all that are usual
constexpr std::int32_t kMostInUpperEight = 90071991;
static_assert(kMostInUpperEight * kPowersOfTen[8] + (kPowersOfTen[8] - 1) < kLargestExactWhole);

// The 16 bytes from place n on mark the last n of a register.
constexpr auto kMarks = [] {
  std::array<unsigned char, 2 * kMostDigits> marks{};
  for (std::size_t n = kMostDigits; n < marks.size(); ++n) marks[n] = 0xFF;
  return marks;
}();

// What the whole number is divided by, for each count of digits behind the point: first after a blank, then after a
// minus sign, so that the sign comes with the division, that of a zero as well.
constexpr auto kDivisors = [] {
  std::array<std::array<double, kMostDigits + 1>, 2> divisors{};
  for (std::size_t n = 0; n <= kMostDigits; ++n) {
    divisors[0][n] = kExactPowersOfTen[n];
    divisors[1][n] = -kExactPowersOfTen[n];
  }
  return divisors;
}();

inline __m128i sixteenBytes(const void* from) { return _mm_loadu_si128(static_cast<const __m128i*>(from)); }

inline __m128i lastBytes(std::size_t count) { return sixteenBytes(kMarks.data() + count); }

// A bit for each byte of a register that is the wanted one.
inline std::uint32_t placesOf(char wanted, __m128i bytes) {
  return static_cast<std::uint32_t>(_mm_movemask_epi8(_mm_cmpeq_epi8(bytes, _mm_set1_epi8(wanted))));
}

// The digits of a decimal without its point, a byte each, and what they are divided by as one whole number.
struct Decimal {
  __m128i digits;
  double divisor;
};

// Takes the decimal of a line apart. It is loaded from its end, and once more a byte earlier: there the digits before
// the point stand where they close up to those behind it. False where the line has another form; whether the digits are
// some is not asked yet.
inline bool takeApart(const char* line, const char* lineFeed, Decimal& decimal) {
  const char* end = lineFeed - 2;
  const auto count = static_cast<std::size_t>(end - line - 2);
  const __m128i earlier = sixteenBytes(end - 17);
  const auto behindPoint = static_cast<std::size_t>(17 - std::bit_width(placesOf('.', earlier)));
  if (count > kMostDigits || behindPoint > count || end[0] != ' ' || end[1] != '\r') return false;
  if (*line != ' ' && *line != '-') return false;
  const __m128i isBehind = lastBytes(behindPoint);
  const __m128i text =
      _mm_or_si128(_mm_and_si128(isBehind, sixteenBytes(end - 16)), _mm_andnot_si128(isBehind, earlier));
  decimal.digits = _mm_and_si128(_mm_xor_si128(text, _mm_set1_epi8('0')), lastBytes(count));
  decimal.divisor = kDivisors[*line == '-' ? 1 : 0][behindPoint];
  return true;
}

// Sixteen digits are joined to eight pairs, these to four fours. The first digit of a pair is in the lower byte: the
// product adds ten times it to the second one in the upper byte.
inline __m128i foursOf(__m128i digits) {
  const __m128i pairs = _mm_srli_epi16(_mm_mullo_epi16(digits, _mm_set1_epi16(10 * 256 + 1)), 8);
  return _mm_madd_epi16(pairs, _mm_set1_epi32(100 + (1 << 16)));
}

// The upper and the lower eight digits of one decimal, then those of the other.
inline __m128i eightsOf(const Decimal& one, const Decimal& other) {
  const __m128i fours = _mm_packs_epi32(foursOf(one.digits), foursOf(other.digits));
  return _mm_madd_epi16(fours, _mm_set1_epi32(10000 + (1 << 16)));
}

// Whether all digits are some, and the whole numbers exact doubles.
inline bool areGood(const Decimal& one, const Decimal& other, __m128i eights) {
  const __m128i beyondNine = _mm_subs_epu8(_mm_max_epu8(one.digits, other.digits), _mm_set1_epi8(9));
  const __m128i most = _mm_set_epi32(INT32_MAX, kMostInUpperEight, INT32_MAX, kMostInUpperEight);
  return placesOf(0, _mm_or_si128(beyondNine, _mm_cmpgt_epi32(eights, most))) == 0xFFFF;
}

inline void storeQuotients(__m128i eights, const Decimal& one, const Decimal& other, double* numbers) {
  const __m128d upper = _mm_cvtepi32_pd(_mm_shuffle_epi32(eights, _MM_SHUFFLE(3, 1, 2, 0)));
  const __m128d lower = _mm_cvtepi32_pd(_mm_shuffle_epi32(eights, _MM_SHUFFLE(2, 0, 3, 1)));
  const __m128d whole = _mm_add_pd(_mm_mul_pd(upper, _mm_set1_pd(1e8)), lower);
  _mm_storeu_pd(numbers, _mm_div_pd(whole, _mm_set_pd(other.divisor, one.divisor)));
}

// One look finds the ends of two lines, since the next two wait for it. Null where one of the lines has another form.
inline const char* readTwoLines(const char* first, double* numbers) {
  std::uint64_t lineFeeds = 0;
  for (int n = 0; n < kBytesOfTwoLines; n += 16)
    lineFeeds |= std::uint64_t{placesOf('\n', sixteenBytes(first + n))} << n;
  const std::uint64_t withoutFirst = lineFeeds & (lineFeeds - 1);
  if (withoutFirst == 0) return nullptr;
  const char* middle = first + std::countr_zero(lineFeeds);
  const char* end = first + std::countr_zero(withoutFirst);
  Decimal one, other;
  if (!takeApart(first, middle, one) || !takeApart(middle + 1, end, other)) return nullptr;
  const __m128i eights = eightsOf(one, other);
  if (!areGood(one, other, eights)) return nullptr;
  storeQuotients(eights, one, other, numbers);
  return end + 1;
}

}  // namespace

PrintLines readDecimalLines(const char* before, const char* first, const char* last, std::span<double> numbers) {
  PrintLines lines{first, 0};
  if (first - before < kBytesBefore) return lines;
  while (numbers.size() - lines.count >= 2 && last - lines.end >= kBytesOfTwoLines) {
    const char* end = readTwoLines(lines.end, &numbers[lines.count]);
    if (end == nullptr) break;
    lines = {end, lines.count + 2};
  }
  return lines;
}

#else

PrintLines readDecimalLines(const char*, const char* first, const char*, std::span<double>) { return {first, 0}; }

#endif

}  // namespace tavimor
