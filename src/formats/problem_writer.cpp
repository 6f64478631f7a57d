#include "formats/problem_writer.h"

#include <algorithm>
#include <span>
#include <vector>

#include "formats/file_pair.h"
#include "formats/foreign_file.h"
#include "formats/function_reader.h"
#include "model/grid_indices.h"
#include "model/table_strips.h"
#include "model/value_lists.h"

namespace tavimor {

namespace {

constexpr std::size_t kNumbersBetweenReports = 4096;

// Counts the numbers of the tables, which are nearly all that is written.
class Count {
 public:
  Count(const Problem& problem, const Fit& fit, const Progress& progress)
      : all_(problem.F.size() + (fit.FitDone ? fit.Coef.size() : 0)), progress_(progress) {}

  void addOne() {
    if (++done_ % kNumbersBetweenReports == 0 && progress_)
      progress_(static_cast<double>(done_) / static_cast<double>(all_));
  }

 private:
  std::size_t all_;
  std::size_t done_ = 0;
  const Progress& progress_;
};

void print(double number, OutputFile& file, Count& count) {
  file.print(number);
  count.addOne();
}

void writeSpecification(const Problem& problem, const Fit& fit, OutputFile& file, Count& count) {
  file.print(problem.LastVar);
  for (Long v = 0; v <= problem.LastVar; ++v)
    file.write(problem.VarName[v], problem.LowerLimit[v], problem.UpperLimit[v], problem.Centre[v],
               problem.PeriodFlag[v], problem.Period[v], problem.Degree[v]);
  file.write(fit.FitDone);
  if (!fit.FitDone) return;
  for (std::size_t n = 0; n < fit.Coef.size(); ++n) print(fit.Coef.data()[n], file, count);  // first index fastest
}

// Numbers go with the last index fastest, a table lies with the first one fastest: where a few first indices have few
// points together, these are turned first.
void writeFunction(const Table4& F, OutputFile& file, Count& count) {
  if (!goesByStrips(F))
    return forEachIndex<Fastest::Last>(F.last(), [&](const PerVariable<Long>& i) { print(F(i), file, count); });
  const std::size_t length = F.size() / F.extent(0), width = kNumbersAtATime / length;
  std::vector<double> turned(std::min(width, F.extent(0)) * length);
  for (std::size_t first = 0; first < F.extent(0); first += width) {
    const auto strip = std::span(turned).first(std::min(width, F.extent(0) - first) * length);
    turnStrip(F, first, strip);
    for (const double number : strip) print(number, file, count);
  }
}

void writeValues(const Problem& problem, const Fit& fit, OutputFile& file, Count& count) {
  file.print(problem.LastVar);
  for (Long v = 0; v <= problem.LastVar; ++v) {
    file.print(problem.LastPoint[v]);
    file.write(problem.EquallySpaced[v]);
  }
  for (Long d = 0; d < kMaxVariables; ++d)
    if (problem.LastPoint[d] != 0)
      for (const double value : valueList(problem, d)) file.print(value);
  writeFunction(problem.F, file, count);
  if (fit.FitDone)
    file.write(problem.NumGridPoints, fit.CorrCoef, fit.StdErr, fit.SumRes2, fit.AvgGiven, fit.AvgEstimated);
}

}  // namespace

void writeProblem(const Problem& problem, const Fit& fit, const std::string& path, FileSteps& steps,
                  const Progress& progress, Access newAccess) {
  requireSameHalves(path);
  FilePair pair(path, steps, usualPatience(), newAccess);
  Count count(problem, fit, progress);
  writeSpecification(problem, fit, pair.specification(), count);
  writeValues(problem, fit, pair.values(), count);
  pair.commit();
}

}  // namespace tavimor
