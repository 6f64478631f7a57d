#include <immintrin.h>

#include "analysis/digit_scales.h"
#include "analysis/pair_sums.h"
#include "analysis/typed_value.h"

#define TAVIMOR_INLINE [[gnu::always_inline]] inline

namespace tavimor {
namespace {

constexpr std::size_t kLanes = 8;
#include "analysis/vector_registers.inc"

TAVIMOR_INLINE bool areSame(Exponents a, Exponents b) {
  return _mm512_cmpneq_epu64_mask(reinterpret_cast<__m512i>(a), reinterpret_cast<__m512i>(b)) == 0;
}

TAVIMOR_INLINE Vector productError(Vector a, Vector b, Vector product) { return _mm512_fmsub_pd(a, b, product); }

// Sums as a * 1 + b, the same bits: many processors add and multiply in units of their own, and these loops add most.
TAVIMOR_INLINE Vector multiplierSum(Vector a, Vector b) { return _mm512_fmadd_pd(a, _mm512_set1_pd(1.0), b); }
TAVIMOR_INLINE Vector multiplierDifference(Vector a, Vector b) { return _mm512_fnmadd_pd(b, _mm512_set1_pd(1.0), a); }

#include "analysis/pair_sums.inc"

}  // namespace

extern const PairSums kPairSumsAvx512;
const PairSums kPairSumsAvx512 = kPairSums;

}  // namespace tavimor
