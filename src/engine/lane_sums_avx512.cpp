#include <cstddef>
#include <utility>

#include "engine/lane_sums.h"

namespace tavimor {
namespace {

constexpr std::size_t kLanes = 8;
#include "engine/lane_sums.inc"

}  // namespace

extern const LaneSums kLaneSumsAvx512;
const LaneSums kLaneSumsAvx512 = kLaneSums;

}  // namespace tavimor
