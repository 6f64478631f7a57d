#include "model/capture_specs.h"

#include "model/value_lists.h"
#include "runtime/run_time_error.h"
#include "runtime/val.h"

namespace tavimor {

namespace {

void captureFields(Dimension& model, const SpecFields& fields, Long k) {
  model.LowerLimit[k] = Val(fields.txtLL);
  model.UpperLimit[k] = Val(fields.txtUL);
  model.Degree[k] = ValLong(fields.txtTerms);
  model.LastPoint[k] = toLong(Val(fields.txtPoints) - 1.0);
  model.Centre[k] = centreFromText(fields.txtExpansion, model.LowerLimit[k], model.UpperLimit[k]);
  model.EquallySpaced[k] = fields.chkSpaced;
  model.PeriodFlag[k] = true;
  model.TrigFlag[k] = false;
}

double spacing(const Dimension& model, Long k) {
  if (model.LastPoint[k] == 0) throw RunTimeError(ErrorNumber::DivisionByZero);
  return (model.UpperLimit[k] - model.LowerLimit[k]) / model.LastPoint[k];
}

}  // namespace

void CaptureSpecs(Dimension& model, const AllSpecFields& fields) {
  for (Long k = 0; k <= model.LastVar; ++k) captureFields(model, fields[k], k);
  model.NumGridPoints = 1;
  for (Long k = 0; k <= model.LastVar; ++k)
    model.NumGridPoints = multiplyLongs(addLongs(model.LastPoint[k], 1), model.NumGridPoints);
  for (Long k = 0; k <= model.LastVar; ++k) model.Step[k] = spacing(model, k);
  RegenerateSpacedValues(model, spacedMarks(fields));
}

void RegenerateSpacedValues(Dimension& model, const PerVariable<bool>& spaced) {
  for (Long k = 0; k <= model.LastVar; ++k)
    if (spaced[k]) generateSpacedValues(model, k);
}

PerVariable<bool> spacedMarks(const AllSpecFields& fields) {
  PerVariable<bool> marks{};
  for (Long k = 0; k < kMaxVariables; ++k) marks[k] = fields[k].chkSpaced;
  return marks;
}

}  // namespace tavimor
