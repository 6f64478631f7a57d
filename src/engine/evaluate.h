#pragma once

#include "model/Dimension.h"

namespace tavimor {

/// The fitted function at the point whose offsets t[k] = x[k] - Centre[k] the caller has set; the result is S3.
/// Horner's scheme, nested from variable 3 outside to variable 0 inside:
///   Sk = sum over ik of V(ik) * t[k]^ik,   V being the level below (Coef(i0,i1,i2,i3) at level 0).
/// A variable with TrigFlag enters through 1, sin u, cos u, sin 2u, cos 2u, ... with u = t[k] instead of powers; the
/// multiple angles are reached by adding u again and again.
/// Without a fit nothing is computed and S3 keeps the earlier estimate.
/// Leaves I0 to I3 changed. Source: Knuth, The Art of Computer Programming, vol. 2, section 4.6.4.
void Evaluate(Dimension& model);

}  // namespace tavimor
