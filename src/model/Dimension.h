#pragma once

#include <string>
#include <vector>

#include "model/table4.h"
#include "runtime/long.h"

namespace tavimor {

/// The problem: what the user has declared and typed, and the fit that belongs to it. The program has one, which
/// every window and the engine share; its state is the program's state.
///
/// Variables are numbered 0 to LastVar. Counts are kept as last indices (LastVar, LastPoint), degrees as typed.
/// There are always four axes: an undeclared variable has degree 0 and one value, so that its axis changes nothing.
struct Dimension {
  Long LastVar = 0;          // number of variables - 1, 0..3
  Long CurVar = 0;           // the variable whose specification block is on screen, counted from 1
  bool FitDone = false;      // Coef and the statistics belong to the current data
  bool LoadingFile = false;  // a problem is being opened: changes of the fields leave FitDone alone
  bool Updating = false;     // a window rewrites its own boxes: their change handlers do nothing
  Long NumGridPoints = 0;    // product over the declared variables of LastPoint + 1

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
  PerVariable<Long> StartIdx{};     // the grid point at which the review of the function stands
  PerVariable<bool> PeriodFlag{};   // the term text shows powers; stored in the problem file
  PerVariable<double> Period{};     // stored in the problem file
  PerVariable<bool> TrigFlag{};     // evaluation and term text use sines and cosines

  // The values of variable v, indices 0 to LastPoint[v]; reached through GetVarX and SetVarX.
  std::vector<double> X0{0.0}, X1{0.0}, X2{0.0}, X3{0.0};

  Table4 F;        // the function: F(i0,i1,i2,i3) at the grid point of value number ik of variable k
  Table4 Coef;     // Coef(j0,j1,j2,j3) multiplies the product of (x_k - Centre[k])^jk
  Table4 FitGrid;  // the fitted values, shaped like F

  double CorrCoef = 0.0, StdErr = 0.0, SumRes2 = 0.0, AvgGiven = 0.0, AvgEstimated = 0.0;
  Long ErrNumber = 0;  // the last run-time error that the fit met, 0 if none since it began

  PerVariable<double> x{};  // the point of evaluation
  PerVariable<double> t{};  // x - Centre
  double S3 = 0.0;          // the estimate there; kept when there is no fit to evaluate

  std::string FileName;  // the current problem file; the work file's path while and after values are added
  std::string WorkDir;   // the current directory at start-up
  std::string InText;    // answers of input boxes, joined names
  double VarX = 0.0;     // the value that GetVarX and SetVarX pass
  double HalfPi = 0.0, Pi = 0.0, E = 0.0;

  // Shared by routines that call each other: the variable, a value index, the indices along the four axes.
  Long V = 0, I = 0, I0 = 0, I1 = 0, I2 = 0, I3 = 0;

  Long OldDegree = 0;  // the degree and the last index that a field showed when it got the focus
  Long OldLastPoint = 0;

  Dimension();
};

/// Clears every entry that is kept per variable.
void ClearVariables(Dimension& model);

}  // namespace tavimor
