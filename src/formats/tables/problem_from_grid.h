#pragma once

#include <optional>
#include <string>
#include <vector>

#include "formats/tables/grid_doctor.h"
#include "formats/tables/import_options.h"
#include "model/problem.h"

namespace tavimor {

/// A problem as the window would have it after its fields are captured.
struct ProblemFromGrid {
  std::optional<Problem> problem;  // nothing where a degree or a centre is refused
  std::vector<Finding> findings;
};

/// Makes a problem of a function on a full grid. The limits are the lowest and the highest value of each variable;
/// values that are exactly lower + i * step are marked equally spaced.
ProblemFromGrid problemFromGrid(GridFunction grid, const std::vector<std::string>& names, const ImportOptions& options);

/// Names that variables can have, made of those of columns: cut at commas and line ends, blanks around them gone, and
/// each once. A column without a name gives x, y, z or w by its place.
std::vector<std::string> variableNames(const std::vector<std::string>& columns);

}  // namespace tavimor
