#pragma once

#include "model/spec_fields.h"

namespace tavimor {

/// Copies the fields of the declared variables into the problem and derives what follows from them: NumGridPoints, Step
/// and the equally spaced values. PeriodFlag becomes true and TrigFlag false for every declared variable.
/// Errors: Overflow for a degree, a count or a number of grid points that no Long holds, and for a step, a middle or an
/// equally spaced value beyond the range of a double; DivisionByZero for a
/// variable with a single value, whose Step has no meaning.
void CaptureSpecs(Problem& problem, const AllSpecFields& fields);

/// Sets the values of each declared variable k with spaced[k] to LowerLimit[k] + i * Step[k], as last captured.
/// Errors: Overflow for a value beyond the range of a double.
void RegenerateSpacedValues(Problem& problem, const PerVariable<bool>& spaced);

/// The check marks of the fields.
PerVariable<bool> spacedMarks(const AllSpecFields& fields);

}  // namespace tavimor
