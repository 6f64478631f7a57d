#include "formats/tables/largest_grid.h"

#include <algorithm>

namespace tavimor {

namespace {

// The points of an incomplete grid, from which whole values of variables can be taken away.
class ShrinkingGrid {
 public:
  ShrinkingGrid(const GridPoints& points, const SortedPoints& sorted) : pointsLeft_(sorted.count()) {
    extents_.reserve(points.variables.size());
    for (const auto& variable : points.variables) extents_.push_back(variable.values.size());
    slabs_.resize(extents_.size());
    for (std::size_t k = 0; k < extents_.size(); ++k) slabs_[k].resize(extents_[k]);
    isThere_.assign(sorted.count(), true);
    coordinates_.resize(sorted.count() * extents_.size());
    for (std::size_t n = 0; n < sorted.count(); ++n) addPoint(n, sorted.numbers[n]);
    left_ = extents_;
  }

  bool isFull() const { return pointsLeft_ == sizeWithout(left_.size()); }
  std::uint64_t pointsLeft() const { return pointsLeft_; }
  bool keepsTwoValuesEach() const {
    return std::all_of(left_.begin(), left_.end(), [](std::size_t count) { return count >= 2; });
  }

  FullGrid::LeftOut worst() const {
    FullGrid::LeftOut worst{0, 0};
    double worstPart = -1.0;
    std::uint64_t worstPoints = 0;
    for (std::size_t k = 0; k < slabs_.size(); ++k) {
      const auto size = static_cast<double>(sizeWithout(k));
      for (std::size_t i = 0; i < slabs_[k].size(); ++i) {
        const Slab& slab = slabs_[k][i];
        const double part = (size - static_cast<double>(slab.count)) / size;
        if (slab.isGone || part < worstPart || (part == worstPart && slab.count >= worstPoints)) continue;
        worst = {k, i};
        worstPart = part;
        worstPoints = slab.count;
      }
    }
    return worst;
  }

  void leaveOut(const FullGrid::LeftOut& value) {
    Slab& slab = slabs_[value.variable][value.value];
    slab.isGone = true;
    --left_[value.variable];
    for (const std::uint32_t n : slab.points) {
      if (!isThere_[n]) continue;
      isThere_[n] = false;
      --pointsLeft_;
      for (std::size_t k = 0; k < slabs_.size(); ++k) --slabs_[k][coordinates_[n * slabs_.size() + k]].count;
    }
  }

  std::vector<std::vector<bool>> kept() const {
    std::vector<std::vector<bool>> kept;
    for (const auto& slabs : slabs_) {
      kept.emplace_back();
      for (const Slab& slab : slabs) kept.back().push_back(!slab.isGone);
    }
    return kept;
  }

 private:
  // The points with one value of one variable.
  struct Slab {
    std::vector<std::uint32_t> points;
    std::uint64_t count = 0;  // of those that are still there
    bool isGone = false;
  };

  void addPoint(std::size_t n, std::uint64_t number) {
    for (std::size_t k = extents_.size(); k-- > 0; number /= extents_[k]) {
      const auto i = static_cast<std::uint32_t>(number % extents_[k]);
      coordinates_[n * extents_.size() + k] = i;
      slabs_[k][i].points.push_back(static_cast<std::uint32_t>(n));
      ++slabs_[k][i].count;
    }
  }

  // The points of the grid that is left, over all variables but one.
  std::uint64_t sizeWithout(std::size_t variable) const {
    std::uint64_t size = 1;
    for (std::size_t k = 0; k < left_.size(); ++k)
      if (k != variable) size *= left_[k];
    return size;
  }

  std::vector<std::size_t> extents_;
  std::vector<std::size_t> left_;  // values of each variable that are still there
  std::vector<std::vector<Slab>> slabs_;
  std::vector<std::uint32_t> coordinates_;
  std::vector<bool> isThere_;
  std::uint64_t pointsLeft_;
};

}  // namespace

std::optional<FullGrid> largestFullGrid(const GridPoints& points, const SortedPoints& sorted) {
  ShrinkingGrid grid(points, sorted);
  FullGrid full;
  while (grid.keepsTwoValuesEach() && !grid.isFull()) {
    full.leftOut.push_back(grid.worst());
    grid.leaveOut(full.leftOut.back());
  }
  if (!grid.keepsTwoValuesEach()) return std::nullopt;
  std::sort(full.leftOut.begin(), full.leftOut.end(), [](const auto& a, const auto& b) {
    return a.variable != b.variable ? a.variable < b.variable : a.value < b.value;
  });
  full.kept = grid.kept();
  full.lostPoints = sorted.count() - grid.pointsLeft();
  return full;
}

}  // namespace tavimor
