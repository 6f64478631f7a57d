#pragma once

#include <optional>
#include <vector>

#include "formats/tables/grid_points.h"
#include "formats/tables/import_options.h"
#include "model/table4.h"

namespace tavimor {

/// A function on a full grid.
struct GridFunction {
  std::vector<std::vector<double>> values;  // of each variable, ascending
  Table4 F;                                 // at the grid point of value number ik of variable k
};

/// What the points of a table are: a full grid, or what is wrong with them.
struct GridDiagnosis {
  std::vector<TableFinding> findings;  // refusals, and what was done about double and missing points
  std::optional<GridFunction> grid;    // nothing where something is refused
};

/// Looks whether the points are a full grid, each of its points once. Nothing is ever interpolated or invented: means
/// of double points and a smaller grid are taken where the options say so.
GridDiagnosis diagnoseGrid(const GridPoints& points, Duplicates duplicates, Gaps gaps);

}  // namespace tavimor
