#pragma once

#include <span>
#include <vector>

namespace tavimor {

/// Values over a grid: value i + j * x.size() stands at (x[i], y[j]); x and y ascend.
struct Sheet {
  std::vector<double> x, y, values;

  double at(std::size_t i, std::size_t j) const { return values[i + j * x.size()]; }
};

/// A line on which a sheet, linear along the edges of its cells, has one value. A closed one ends where it begins.
struct ContourLine {
  double level = 0.0;
  std::vector<double> x, y;

  bool isClosed() const { return x.size() > 2 && x.front() == x.back() && y.front() == y.back(); }
};

/// The contour lines of a sheet at some levels, by marching squares. A cell with two crossings on either side of its
/// middle is divided as the mean of its corners says; one with a corner that is no finite number has none. A corner
/// that has the level's value counts as above it.
/// Source: Maple, Geometric design and space planning using the marching squares and marching cube algorithms, 2003.
std::vector<ContourLine> contourLines(const Sheet& sheet, std::span<const double> levels);

}  // namespace tavimor
