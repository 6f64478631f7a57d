#include <cstring>

#include "analysis/pair_sums.h"
#include "analysis/typed_value.h"

#define TAVIMOR_INLINE inline

namespace tavimor {
namespace {

constexpr std::size_t kLanes = 1;
using Vector = double;

TAVIMOR_INLINE Vector load(const double* from) { return *from; }
TAVIMOR_INLINE void store(double* to, Vector value) { *to = value; }
TAVIMOR_INLINE Vector spread(double value) { return value; }
TAVIMOR_INLINE Vector select(bool mask, Vector a, Vector b) { return mask ? a : b; }
#include "analysis/split_product.inc"

#include "analysis/pair_sums.inc"

}  // namespace

extern const PairSums kPairSumsPlain;
const PairSums kPairSumsPlain = kPairSums;

}  // namespace tavimor
