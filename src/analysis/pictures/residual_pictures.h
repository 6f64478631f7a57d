#pragma once

#include "analysis/pictures/grid_values.h"
#include "analysis/pictures/shown_fit.h"
#include "analysis/pictures/thinned_points.h"

namespace tavimor {

/// How many residuals lie in each of equally wide parts; the last one holds its upper end too.
struct Histogram {
  double lower = 0.0, width = 0.0;
  std::vector<std::size_t> counts;
  std::vector<double> normal;  // how many a normal distribution of mean 0 and the same mean square would give
};

/// The residuals of a fit, ready to be pictured. Numbers of points are those of the function's elements in memory.
struct ResidualPictures {
  std::vector<PicturePoint> againstFitted;
  PerVariable<std::vector<PicturePoint>> againstVariable;
  Histogram histogram;
  std::vector<PicturePoint> quantiles;  // x: what a normal variable of deviation 1 has at this rank
  double rootMeanSquare = 0.0;
  std::vector<std::size_t> largest;  // the largest magnitudes first, kMostListed at most
  std::string notShown;              // why there is nothing to see; empty where there is
};

constexpr std::size_t kMostListed = 100;

/// Quantiles: residual i of n in ascending order against the normal quantile of (i - 3/8) / (n + 1/4).
/// Source: Blom, Statistical Estimates and Transformed Beta-Variables, 1958.
ResidualPictures residualPictures(const ShownFit& fit);

/// Of `count` numbers of which the root of the mean square is given. There is a finite one.
Histogram histogramOf(std::span<const double> numbers, double rootMeanSquare);

/// What is to be seen, in words and numbers, for those who do not see it.
std::string residualText(const ShownFit& fit, const ResidualPictures& pictures);

}  // namespace tavimor
