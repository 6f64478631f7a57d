#pragma once

#include "model/fit.h"
#include "model/problem.h"
#include "model/session.h"

namespace tavimor {

/// The state of the program, made at start-up and handed on by reference. What works on a problem or on a fit takes
/// that part alone.
struct Dimension : Problem, Fit, Session {};

/// Clears every entry that is kept per variable.
void ClearVariables(Dimension& model);

/// Puts value i of variable v into VarX, or stores VarX there. A v outside 0..3 changes nothing.
/// Errors: SubscriptOutOfRange for an index beyond the list.
void GetVarX(Dimension& model, Long v, Long i);
void SetVarX(Dimension& model, Long v, Long i);

/// Puts the indices along the four axes into I0 to I3.
void setTermIndices(Dimension& model, const PerVariable<Long>& index);

}  // namespace tavimor
