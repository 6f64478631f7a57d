#pragma once

#include "analysis/pictures/colour_scale.h"
#include "analysis/pictures/contour_lines.h"
#include "analysis/pictures/grid_values.h"
#include "analysis/pictures/shown_fit.h"
#include "analysis/pictures/thinned_points.h"

namespace tavimor {

enum class MapOf {
  Fit,
  Given,
  Residual,         // given - fitted
  RelativeResidual  // beside the given value's magnitude; there is none where that is 0
};

/// Which map of a fit is wanted.
struct MapChoice {
  MapOf of = MapOf::Fit;
  Long x = 0, y = 1;         // the variables
  PerVariable<double> at{};  // where the others are held
};

/// Numbers over two variables.
struct SurfaceMap {
  Sheet sheet;  // what colours show, at equally spaced x and y: given values and residuals are those of the nearest
                // grid point; NaN where there is none
  ColourScale scale = ColourScale::Values;
  ColourRange range;
  std::vector<ContourLine> contours;  // of the fit and of given values, at round levels
  std::vector<PicturePoint> points;   // the grid points; empty where they would cover the map
  PerVariable<Long> heldIndex{};      // of the grid points, entries x and y excepted
  std::string notShown;               // why there is nothing to see; empty where there is
};

SurfaceMap mapOf(const ShownFit& fit, const MapChoice& choice);

/// "residual", for titles and scales.
std::string mapQuantity(MapOf of);

/// What is to be seen, in words and numbers, for those who do not see it.
std::string mapText(const ShownFit& fit, const MapChoice& choice, const SurfaceMap& map);

}  // namespace tavimor
