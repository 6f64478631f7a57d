#include <cstddef>
#include <utility>

#include "engine/lane_sums.h"

namespace tavimor {
namespace {

constexpr std::size_t kLanes = 4;
#include "engine/lane_sums.inc"

}  // namespace

extern const LaneSums kLaneSumsAvx2;
const LaneSums kLaneSumsAvx2 = kLaneSums;

}  // namespace tavimor
