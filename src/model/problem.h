#pragma once

#include <string>
#include <vector>

#include "model/table4.h"
#include "runtime/long.h"

namespace tavimor {

/// The problem: what the user has declared and typed, and what follows from that before any fit.
///
/// Variables are numbered 0 to LastVar. Counts are kept as last indices (LastVar, LastPoint), degrees as typed.
/// There are always four axes: an undeclared variable has degree 0 and one value, so that its axis changes nothing.
struct Problem {
  Long LastVar = 0;        // number of variables - 1, 0..3
  Long NumGridPoints = 0;  // product over the declared variables of LastPoint + 1, as last captured

  PerVariable<std::string> VarName;
  PerVariable<double> LowerLimit{};
  PerVariable<double> UpperLimit{};
  PerVariable<double> Centre{};   // the fit is in powers of (x - Centre)
  PerVariable<Long> Degree{};     // the highest power
  PerVariable<Long> LastPoint{};  // number of values - 1
  PerVariable<double> Step{};     // (UpperLimit - LowerLimit) / LastPoint, as last captured
  PerVariable<bool> EquallySpaced{};
  PerVariable<bool> ValuesGiven{};  // the value list exists: generated once, or read from a file
  PerVariable<Long> AddCount{};     // how many values were added the last time
  PerVariable<bool> PeriodFlag{};   // the term text shows powers; stored in the problem file
  PerVariable<double> Period{};     // stored in the problem file
  PerVariable<bool> TrigFlag{};     // evaluation and term text use sines and cosines

  // The values of variable v, indices 0 to LastPoint[v]: see valueList.
  std::vector<double> X0{0.0}, X1{0.0}, X2{0.0}, X3{0.0};

  Table4 F;  // the function: F(i0,i1,i2,i3) at the grid point of value number ik of variable k
};

/// Clears every entry that is kept for variable v, its values excepted.
void ClearVariable(Problem& problem, Long v);

}  // namespace tavimor
