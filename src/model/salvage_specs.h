#pragma once

#include "model/fit.h"
#include "model/spec_fields.h"

namespace tavimor {

/// Puts into the problem what the fields show, each field by itself as far as it can be read, so that it can be saved
/// whatever has gone wrong: a field that cannot be read leaves what the problem has. A number of values that no table
/// holds gives way to the one that the function has. All values of the variables and of the function that lie within
/// the numbers stay. The fit goes where it is no longer one of this problem.
/// Errors: OutOfMemory.
void salvageSpecs(Problem& problem, Fit& fit, const AllSpecFields& fields);

}  // namespace tavimor
