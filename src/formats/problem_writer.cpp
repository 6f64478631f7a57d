#include "formats/problem_writer.h"

#include "formats/file_pair.h"
#include "model/grid_indices.h"
#include "model/value_lists.h"

namespace tavimor {

namespace {

void writeSpecification(const Problem& problem, const Fit& fit, OutputFile& file) {
  file.print(problem.LastVar);
  for (Long v = 0; v <= problem.LastVar; ++v)
    file.write(problem.VarName[v], problem.LowerLimit[v], problem.UpperLimit[v], problem.Centre[v],
               problem.PeriodFlag[v], problem.Period[v], problem.Degree[v]);
  file.write(fit.FitDone);
  if (!fit.FitDone) return;
  for (std::size_t n = 0; n < fit.Coef.size(); ++n) file.print(fit.Coef.data()[n]);  // first index fastest
}

void writeValues(const Problem& problem, const Fit& fit, OutputFile& file) {
  file.print(problem.LastVar);
  for (Long v = 0; v <= problem.LastVar; ++v) {
    file.print(problem.LastPoint[v]);
    file.write(problem.EquallySpaced[v]);
  }
  for (Long d = 0; d < kMaxVariables; ++d)
    if (problem.LastPoint[d] != 0)
      for (const double value : valueList(problem, d)) file.print(value);
  forEachIndex<Fastest::Last>(problem.LastPoint, [&](const PerVariable<Long>& i) { file.print(problem.F(i)); });
  if (fit.FitDone)
    file.write(problem.NumGridPoints, fit.CorrCoef, fit.StdErr, fit.SumRes2, fit.AvgGiven, fit.AvgEstimated);
}

}  // namespace

void writeProblem(const Problem& problem, const Fit& fit, const std::string& path, FileSteps& steps) {
  FilePair pair(path, steps);
  writeSpecification(problem, fit, pair.specification());
  writeValues(problem, fit, pair.values());
  pair.commit();
}

}  // namespace tavimor
