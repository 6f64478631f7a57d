#pragma once

#include <optional>
#include <string>
#include <vector>

#include "formats/tables/grid_doctor.h"
#include "formats/tables/import_options.h"
#include "model/problem.h"

namespace tavimor {

/// Makes a problem of a function on a full grid, as the window would have it after its fields are captured, of
/// degree 1. The centres are left to setDegreesAndCentres. The limits are the lowest and the highest value of each
/// variable; values that are exactly lower + i * step are marked equally spaced.
Problem problemFromGrid(GridFunction grid, const std::vector<std::string>& names);

/// Sets the degrees and the centres, one for each variable or one for all; no degrees leave them as they are, no
/// centres are the middles. A centre is a number or "*", the middle of the interval. Returns what is refused of them.
std::vector<TableFinding> setDegreesAndCentres(Problem& problem, const std::vector<Long>& degrees,
                                               const std::vector<std::string>& centres);

/// Names that variables can have, made of those of columns: cut at commas and line ends, blanks around them gone, and
/// each once. A column without a name gives x, y, z or w by its place.
std::vector<std::string> variableNames(const std::vector<std::string>& columns);

}  // namespace tavimor
