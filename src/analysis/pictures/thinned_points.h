#pragma once

#include <functional>
#include <vector>

namespace tavimor {

/// A point of a picture, and the number that it has among all of its kind.
struct PicturePoint {
  double x = 0.0, y = 0.0;
  std::size_t number = 0;
};

/// What an eye can tell apart of many points: of those in one cell of a raster over all of them, the first. A cloud of
/// at most `few` points stays whole. Points that are not finite are left out.
struct Raster {
  std::size_t columns = 400, rows = 300;
  std::size_t few = 5000;
};
std::vector<PicturePoint> thinnedPoints(std::size_t count, const std::function<double(std::size_t)>& x,
                                        const std::function<double(std::size_t)>& y, const Raster& raster = {});

}  // namespace tavimor
