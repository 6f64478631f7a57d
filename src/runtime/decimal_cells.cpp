#include "runtime/decimal_cells.h"

#include "runtime/decimal.h"

namespace tavimor {

#ifdef TAVIMOR_HAS_SSE2

namespace {

constexpr std::ptrdiff_t kBytesOfRow = 64;

// A bit for each separator and each line feed of a row.
inline std::uint64_t endsOfCells(const char* first, char separator) {
  std::uint64_t ends = 0;
  for (int n = 0; n < kBytesOfRow; n += 16) {
    const __m128i bytes = sixteenBytes(first + n);
    ends |= std::uint64_t{placesOf(separator, bytes) | placesOf('\n', bytes)} << n;
  }
  return ends;
}

inline bool takeCell(const char* cell, const char* end, Decimal& decimal) {
  const Sign sign = *cell == '-' ? Sign::Minus : Sign::Plus;
  const char* magnitude = cell + (sign == Sign::Minus ? 1 : 0);
  return takeApart(static_cast<std::size_t>(end - magnitude), end, sign, decimal);
}

inline bool readCell(const char* cell, const char* end, double& number) {
  Decimal decimal;
  __m128d numbers;
  if (!takeCell(cell, end, decimal) || !numbersOf(decimal, decimal, numbers)) return false;
  number = _mm_cvtsd_f64(numbers);
  return true;
}

}  // namespace

const char* readDecimalCells(const char* before, const char* first, const char* last, char separator,
                             std::span<double> numbers) {
  if (first - before < kBytesBeforeDecimal || last - first < kBytesOfRow) return nullptr;
  std::uint64_t ends = endsOfCells(first, separator);
  const char* cell = first;
  for (std::size_t k = 0; k < numbers.size(); ++k, ends &= ends - 1) {
    if (ends == 0) return nullptr;
    const bool isLast = k + 1 == numbers.size();
    const char* end = first + std::countr_zero(ends);
    if (*end != (isLast ? '\n' : separator)) return nullptr;
    const char* behind = isLast && end[-1] == '\r' ? end - 1 : end;
    if (!readCell(cell, behind, numbers[k])) return nullptr;
    cell = end + 1;
  }
  return cell;
}

#else

const char* readDecimalCells(const char*, const char*, const char*, char, std::span<double>) { return nullptr; }

#endif

}  // namespace tavimor
