#pragma once

#include "model/problem.h"

namespace tavimor {

/// The value of a polynomial at the point with the offsets t[k] = x[k] - Centre[k]. Horner's scheme, nested from
/// variable 3 outside to variable 0 inside:
///   Sk = sum over ik of V(ik) * t[k]^ik,   V being the level below (Coef(i0,i1,i2,i3) at level 0).
/// A variable with TrigFlag enters through 1, sin u, cos u, sin 2u, cos 2u, ... with u = t[k] instead of powers; the
/// multiple angles are reached by adding u again and again.
/// Shapes: the degrees are the bounds of Coef.
/// Errors: Overflow where the sums of finite numbers leave the range. An infinity or a NaN among Coef or t goes
/// through. Source: Knuth, The Art of Computer Programming, vol. 2, section 4.6.4.
double valueAt(const Table4& Coef, const PerVariable<bool>& TrigFlag, const PerVariable<double>& t);

/// The offset of a coordinate from its centre of expansion. Errors: Overflow, as above.
double offsetFrom(double centre, double x);

/// The offsets of a point from the centres of expansion. Errors: Overflow, as above.
PerVariable<double> offsetsFrom(const PerVariable<double>& Centre, const PerVariable<double>& x);

}  // namespace tavimor
