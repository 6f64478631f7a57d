#pragma once

#include <memory>

#include "analysis/pictures/degree_picture.h"
#include "analysis/pictures/residual_pictures.h"
#include "analysis/pictures/section.h"
#include "analysis/pictures/surface_map.h"
#include "ui/pictures/picture.h"

namespace tavimor {

/// What the computed half of a picture looks like. Each puts it into a picture, with its title and its words.

void showSection(Picture& picture, const std::shared_ptr<const ShownFit>& fit, Section section);
void showMap(Picture& picture, const std::shared_ptr<const ShownFit>& fit, const MapChoice& choice, SurfaceMap map);

/// Against the fitted value, against variable k, the histogram and the normal quantiles.
void showResiduals(Picture& picture, const std::shared_ptr<const ShownFit>& fit,
                   const std::shared_ptr<const ResidualPictures>& residuals, Long k);

/// s against the number of coefficients and, for two variables, its colours over both degrees. Numbers of points are
/// those of the combinations.
void showDegrees(Picture& picture, const Problem& problem, std::vector<DegreeCombination> combinations);

}  // namespace tavimor
