#pragma once

#include "model/Dimension.h"

namespace tavimor {

/// The value list of variable v = 0..3. Errors: SubscriptOutOfRange for any other v.
std::vector<double>& valueList(Dimension& model, Long v);
const std::vector<double>& valueList(const Dimension& model, Long v);

/// Puts value i of variable v into VarX, or stores VarX there. A v outside 0..3 changes nothing.
/// Errors: SubscriptOutOfRange for an index beyond the list.
void GetVarX(Dimension& model, Long v, Long i);
void SetVarX(Dimension& model, Long v, Long i);

/// Gives variable v LastPoint[v] + 1 values: the existing ones stay, new ones are 0. A v outside 0..3 changes nothing.
/// Errors: SubscriptOutOfRange for a negative LastPoint, OutOfMemory.
void ResizeVarValues(Dimension& model, Long v);

/// Sets the values of variable v to LowerLimit[v] + i * Step[v], i = 0..LastPoint[v].
void generateSpacedValues(Dimension& model, Long v);

/// Generates the values of variable v the first time that they are needed, and marks them given.
void giveDefaultValues(Dimension& model, Long v);

/// Takes value r of variable v away by moving the last value into its place, in the list and in F, which both shrink
/// by one. The order of the values is therefore not kept. Does nothing for a v outside 0..3 or a single value.
/// Errors: SubscriptOutOfRange for an r beyond the list.
void deleteValue(Dimension& model, Long v, Long r);

}  // namespace tavimor
