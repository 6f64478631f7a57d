#include "runtime/decimal_lines.h"

#include "runtime/decimal.h"

namespace tavimor {

#ifdef TAVIMOR_HAS_SSE2

namespace {

constexpr std::ptrdiff_t kBytesOfTwoLines = 48;  // all that are usual

// Whether a line has the form of one that holds a decimal.
inline bool takeLine(const char* line, const char* lineFeed, Decimal& decimal) {
  const char* end = lineFeed - 2;
  if ((*line != ' ' && *line != '-') || end[0] != ' ' || end[1] != '\r') return false;
  return takeApart(static_cast<std::size_t>(end - line - 1), end, *line == '-' ? Sign::Minus : Sign::Plus, decimal);
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
  __m128d both;
  if (!takeLine(first, middle, one) || !takeLine(middle + 1, end, other) || !numbersOf(one, other, both))
    return nullptr;
  _mm_storeu_pd(numbers, both);
  return end + 1;
}

}  // namespace

PrintLines readDecimalLines(const char* before, const char* first, const char* last, std::span<double> numbers) {
  PrintLines lines{first, 0};
  if (first - before < kBytesBeforeDecimal) return lines;
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
