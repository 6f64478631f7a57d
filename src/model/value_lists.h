#pragma once

#include <vector>

#include "model/problem.h"

namespace tavimor {

/// The value list of variable v = 0..3. Errors: SubscriptOutOfRange for any other v.
std::vector<double>& valueList(Problem& problem, Long v);
const std::vector<double>& valueList(const Problem& problem, Long v);

/// Value i of variable v. Errors: SubscriptOutOfRange for a v outside 0..3 and for an index beyond the list.
double& valueOf(Problem& problem, Long v, Long i);
double valueOf(const Problem& problem, Long v, Long i);

/// The point of the grid with these indices, a value per declared variable. Errors: as valueOf.
std::vector<double> gridPoint(const Problem& problem, const PerVariable<Long>& index);

/// Takes the memory that variable v's LastPoint[v] + 1 values need. A v outside 0..3 changes nothing.
/// Errors: as ResizeVarValues.
void ReserveVarValues(Problem& problem, Long v);

/// Gives variable v LastPoint[v] + 1 values: the existing ones stay, new ones are 0. A v outside 0..3 changes nothing.
/// Errors: SubscriptOutOfRange for a negative LastPoint, OutOfMemory.
void ResizeVarValues(Problem& problem, Long v);

/// Sets the values of variable v to LowerLimit[v] + i * Step[v], i = 0..LastPoint[v].
/// Errors: Overflow for a value beyond the range of a double.
void generateSpacedValues(Problem& problem, Long v);

/// Generates the values of variable v the first time that they are needed, and marks them given.
void giveDefaultValues(Problem& problem, Long v);

}  // namespace tavimor
