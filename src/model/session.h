#pragma once

#include <cmath>
#include <string>

#include "model/per_variable.h"
#include "runtime/long.h"

namespace tavimor {

/// The state of the run beside the problem and its fit: what is on screen, what was asked last, where files are.
struct Session {
  Long CurVar = 0;           // the variable whose specification block is on screen, counted from 1
  bool LoadingFile = false;  // a problem is being opened: changes of the fields leave FitDone alone
  bool Updating = false;     // a window rewrites its own boxes: their change handlers do nothing
  Long ErrNumber = 0;        // the last run-time error that a fit met, 0 if none since it began

  PerVariable<Long> StartIdx{};  // the grid point at which the review of the function stands

  PerVariable<double> x{};  // the point of evaluation
  PerVariable<double> t{};  // x - Centre
  double S3 = 0.0;          // the estimate there; kept when there is no fit to evaluate

  std::string FileName;  // the current problem file; the work file's path while and after values are added
  std::string WorkDir;   // the current directory at start-up
  std::string InText;    // answers of input boxes, joined names
  double HalfPi = 2.0 * std::atan(1.0), Pi = 4.0 * std::atan(1.0), E = std::exp(1.0);

  // Cells that windows share: the variable, a value index, a value on its way (GetVarX, SetVarX), the indices along
  // the four axes.
  Long V = 0, I = 0;
  double VarX = 0.0;
  Long I0 = 0, I1 = 0, I2 = 0, I3 = 0;

  Long OldDegree = 0;  // the degree and the last index that a field showed when it got the focus
  Long OldLastPoint = 0;
};

}  // namespace tavimor
