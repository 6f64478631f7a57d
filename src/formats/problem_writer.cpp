#include "formats/problem_writer.h"

#include "formats/file_pair.h"
#include "model/value_lists.h"

namespace tavimor {

namespace {

void writeSpecification(const Dimension& model, OutputFile& file) {
  file.print(model.LastVar);
  for (Long v = 0; v <= model.LastVar; ++v)
    file.write(model.VarName[v], model.LowerLimit[v], model.UpperLimit[v], model.Centre[v], model.PeriodFlag[v],
               model.Period[v], model.Degree[v]);
  file.write(model.FitDone);
  if (!model.FitDone) return;
  for (std::size_t n = 0; n < model.Coef.size(); ++n) file.print(model.Coef.data()[n]);  // first index fastest
}

// The table stands in the file with the last index fastest.
void writeFunction(const Dimension& model, OutputFile& file) {
  for (Long i0 = 0; i0 <= model.LastPoint[0]; ++i0)
    for (Long i1 = 0; i1 <= model.LastPoint[1]; ++i1)
      for (Long i2 = 0; i2 <= model.LastPoint[2]; ++i2)
        for (Long i3 = 0; i3 <= model.LastPoint[3]; ++i3) file.print(model.F(i0, i1, i2, i3));
}

void writeValues(const Dimension& model, OutputFile& file) {
  file.print(model.LastVar);
  for (Long v = 0; v <= model.LastVar; ++v) {
    file.print(model.LastPoint[v]);
    file.write(model.EquallySpaced[v]);
  }
  for (Long d = 0; d < kMaxVariables; ++d)
    if (model.LastPoint[d] != 0)
      for (const double value : valueList(model, d)) file.print(value);
  writeFunction(model, file);
  if (model.FitDone)
    file.write(model.NumGridPoints, model.CorrCoef, model.StdErr, model.SumRes2, model.AvgGiven, model.AvgEstimated);
}

}  // namespace

void writeProblem(const Dimension& model, const std::string& path, FileSteps& steps) {
  FilePair pair(path, steps);
  writeSpecification(model, pair.specification());
  writeValues(model, pair.values());
  pair.commit();
}

}  // namespace tavimor
