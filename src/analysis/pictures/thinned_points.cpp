#include "analysis/pictures/thinned_points.h"

#include <algorithm>
#include <cmath>

namespace tavimor {

namespace {

// The finite numbers' ends, and the part of a number of parts between them in which a number lies.
struct Extent {
  double least = INFINITY, largest = -INFINITY;

  void add(double value) {
    least = std::min(least, value);
    largest = std::max(largest, value);
  }

  std::size_t part(double value, std::size_t parts) const {
    if (!(least < largest)) return 0;
    const double share = (value / 2 - least / 2) / (largest / 2 - least / 2);  // halves: the width may overflow
    return std::min(static_cast<std::size_t>(share * static_cast<double>(parts)), parts - 1);
  }
};

}  // namespace

std::vector<PicturePoint> thinnedPoints(std::size_t count, const std::function<double(std::size_t)>& x,
                                        const std::function<double(std::size_t)>& y, const Raster& raster) {
  std::vector<PicturePoint> points;
  Extent ofX, ofY;
  std::vector<char> isTaken(count > raster.few ? raster.columns * raster.rows : 0);
  const auto forEachFinite = [&](const auto& visit) {
    for (std::size_t n = 0; n < count; ++n)
      if (const PicturePoint point{x(n), y(n), n}; std::isfinite(point.x) && std::isfinite(point.y)) visit(point);
  };
  forEachFinite([&](const PicturePoint& point) {
    ofX.add(point.x);
    ofY.add(point.y);
    if (isTaken.empty()) points.push_back(point);
  });
  if (isTaken.empty()) return points;
  forEachFinite([&](const PicturePoint& point) {
    char& cell = isTaken[ofX.part(point.x, raster.columns) + ofY.part(point.y, raster.rows) * raster.columns];
    if (cell == 0) points.push_back(point);
    cell = 1;
  });
  return points;
}

}  // namespace tavimor
