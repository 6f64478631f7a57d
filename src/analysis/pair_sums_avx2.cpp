#include <immintrin.h>

#include "analysis/digit_scales.h"
#include "analysis/pair_sums.h"
#include "analysis/typed_value.h"

#define TAVIMOR_INLINE [[gnu::always_inline]] inline

namespace tavimor {
namespace {

constexpr std::size_t kLanes = 4;
#include "analysis/vector_registers.inc"

TAVIMOR_INLINE bool areSame(Exponents a, Exponents b) {
  const __m256i difference = reinterpret_cast<__m256i>(a ^ b);
  return _mm256_testz_si256(difference, difference) != 0;
}

TAVIMOR_INLINE Vector productError(Vector a, Vector b, Vector product) { return _mm256_fmsub_pd(a, b, product); }

// Sums as a * 1 + b, the same bits: many processors add and multiply in units of their own, and these loops add most.
TAVIMOR_INLINE Vector multiplierSum(Vector a, Vector b) { return _mm256_fmadd_pd(a, _mm256_set1_pd(1.0), b); }
TAVIMOR_INLINE Vector multiplierDifference(Vector a, Vector b) { return _mm256_fnmadd_pd(b, _mm256_set1_pd(1.0), a); }

#include "analysis/pair_sums.inc"

}  // namespace

extern const PairSums kPairSumsAvx2;
const PairSums kPairSumsAvx2 = kPairSums;

}  // namespace tavimor
