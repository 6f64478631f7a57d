#include "model/table4.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <string>

#include "model/grid_indices.h"
#include "runtime/run_time_error.h"

namespace tavimor {

namespace {

// Positions are counted in a Long, as the number of grid points is.
constexpr std::size_t kMostElements = std::numeric_limits<Long>::max();

RunTimeError tooLarge(const PerVariable<Long>& last) {
  std::string extents;
  for (const Long bound : last) extents += (extents.empty() ? "" : " x ") + std::to_string(std::int64_t{bound} + 1);
  return RunTimeError(ErrorNumber::OutOfMemory, {}, "for a table of " + extents + " numbers");
}

}  // namespace

std::size_t tableSize(const PerVariable<Long>& last) {
  std::size_t size = 1;
  for (const Long bound : last) {
    if (bound < 0) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    const std::size_t extent = static_cast<std::size_t>(bound) + 1;
    if (extent > kMostElements / size) throw tooLarge(last);
    size *= extent;
  }
  return size;
}

void Table4::redim(const PerVariable<Long>& last) {
  const std::size_t size = tableSize(last);
  try {
    if (size == elements_.size())
      std::fill(elements_.begin(), elements_.end(), 0.0);
    else
      elements_ = Elements(size);
  } catch (const std::bad_alloc&) {
    throw tooLarge(last);
  }
  last_ = last;
}

void Table4::resizeKeeping(const PerVariable<Long>& last) {
  Table4 resized;
  resized.redim(last);
  PerVariable<Long> common{};
  std::transform(last.begin(), last.end(), last_.begin(), common.begin(),
                 [](Long a, Long b) { return std::min(a, b); });
  const Long run = common[0];  // neighbours in memory
  common[0] = 0;
  forEachIndex(common, [&](const PerVariable<Long>& first) {
    std::copy_n(&elements_[offset(first)], run + 1, &resized.elements_[resized.offset(first)]);
  });
  *this = std::move(resized);
}

std::size_t Table4::stride(int k) const {
  std::size_t distance = 1;
  for (int axis = 0; axis < k; ++axis) distance *= extent(axis);
  return distance;
}

std::size_t Table4::offset(const PerVariable<Long>& index) const {
  std::size_t at = 0;
  for (int k = kMaxVariables - 1; k >= 0; --k) {
    const Long i = index[k];
    if (i < 0 || i > last_[k]) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    at = at * extent(k) + i;
  }
  return at;
}

}  // namespace tavimor
