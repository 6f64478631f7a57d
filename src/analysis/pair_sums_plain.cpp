#include <bit>
#include <cstdint>

#include "analysis/digit_scales.h"
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
TAVIMOR_INLINE Vector absolute(Vector value) { return __builtin_fabs(value); }

using Exponents = std::uint64_t;
TAVIMOR_INLINE Exponents exponentBits(Vector value) { return std::bit_cast<Exponents>(value) >> 52 & 0x7FF; }
TAVIMOR_INLINE bool areSame(Exponents a, Exponents b) { return a == b; }
TAVIMOR_INLINE Vector lookUp(const double* table, Exponents index) { return table[index]; }
#include "analysis/split_product.inc"

#include "analysis/pair_sums.inc"

}  // namespace

extern const PairSums kPairSumsPlain;
const PairSums kPairSumsPlain = kPairSums;

}  // namespace tavimor
