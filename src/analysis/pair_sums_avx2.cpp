#include <immintrin.h>

#include "analysis/digit_scales.h"
#include "analysis/pair_sums.h"
#include "analysis/typed_value.h"

#define TAVIMOR_INLINE [[gnu::always_inline]] inline

namespace tavimor {
namespace {

constexpr std::size_t kLanes = 4;
#include "analysis/vector_registers.inc"

TAVIMOR_INLINE Vector productError(Vector a, Vector b, Vector product) { return _mm256_fmsub_pd(a, b, product); }

#include "analysis/pair_sums.inc"

}  // namespace

extern const PairSums kPairSumsAvx2;
const PairSums kPairSumsAvx2 = kPairSums;

}  // namespace tavimor
