#include <chrono>
#include <cstddef>
#include <utility>

namespace {

constexpr std::size_t kLanes = 8;
#include "peak.inc"

}  // namespace

double peakAvx512() { return peakOfOneSecondShare(); }
