#include <cstddef>
#include <utility>

#include "engine/lane_sums.h"

namespace tavimor {
namespace {

constexpr std::size_t kLanes = 2;
#include "engine/lane_sums.inc"

}  // namespace

extern const LaneSums kLaneSumsBaseline;
const LaneSums kLaneSumsBaseline = kLaneSums;

}  // namespace tavimor
