#include "formats/problem_reader.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <span>
#include <utility>

#include "formats/file_pair.h"
#include "model/spec_fields.h"
#include "model/value_lists.h"
#include "platform/memory.h"
#include "runtime/input_file.h"
#include "runtime/val.h"

namespace tavimor {

namespace {

constexpr Long kMostLastIndex = std::numeric_limits<Long>::max() - 1;  // so that the count is a Long too

Long readLastVar(InputFile& file) { return file.readLong("the number of variables less one", 0, kMaxVariables - 1); }

// The elements of a table with these bounds; nothing where there are more than can be counted.
std::optional<std::uint64_t> elements(const PerVariable<Long>& last) {
  std::uint64_t product = 1;
  for (const Long bound : last) {
    const std::uint64_t extent = static_cast<std::uint64_t>(bound) + 1;
    if (product > std::numeric_limits<std::uint64_t>::max() / extent) return std::nullopt;
    product *= extent;
  }
  return product;
}

// Before memory is taken for the numbers of a table: the rest of the file must be able to hold them.
void requireRoom(const InputFile& file, const PerVariable<Long>& last, const std::string& items) {
  const std::optional<std::uint64_t> needed = elements(last);
  if (needed && *needed <= file.mostFieldsLeft()) return;
  file.refuse(needed ? std::to_string(*needed) + " " + items : "more " + items + " than can be counted",
              "room for " + std::to_string(file.mostFieldsLeft()) + " at most");
}

void readInOrder(InputFile& file, const char* item, double* target, std::size_t count) {
  file.readDoubles(item, count, [&](std::span<const double> numbers) {
    target = std::copy(numbers.begin(), numbers.end(), target);
  });
}

std::string readRecord(InputFile& file, Dimension& model, Long v) {
  model.VarName[v] = file.readText("the name of a variable");
  model.LowerLimit[v] = file.readDouble("the lower limit");
  model.UpperLimit[v] = file.readDouble("the upper limit");
  std::string centre = file.readText("the centre of expansion");
  model.Centre[v] = centreFromText(centre, model.LowerLimit[v], model.UpperLimit[v]);
  model.PeriodFlag[v] = file.readBoolean("the period flag");
  const std::string period = file.readText("the period");
  model.Period[v] = period == "*" ? model.Pi + model.Pi : Val(period);
  model.Degree[v] = file.readLong("the degree", 0, kMostLastIndex);
  return centre;
}

void readCoefficients(InputFile& file, Dimension& model) {
  requireRoom(file, model.Degree, "coefficients");
  model.Coef.redim(model.Degree);
  readInOrder(file, "a coefficient", model.Coef.data(), model.Coef.size());  // first index fastest, as in memory
}

CentreTexts readSpecification(const std::string& path, Dimension& model) {
  InputFile file(path);
  CentreTexts centres;
  model.LastVar = readLastVar(file);
  for (Long v = 0; v <= model.LastVar; ++v) centres[v] = readRecord(file, model, v);
  model.FitDone = file.readBoolean("whether there is a fit");
  if (model.FitDone) readCoefficients(file, model);
  file.expectEnd();
  return centres;
}

void readCounts(InputFile& file, Dimension& model) {
  for (Long v = 0; v <= model.LastVar; ++v) {
    model.LastPoint[v] = file.readLong("the number of values less one", 0, kMostLastIndex);
    model.EquallySpaced[v] = file.readBoolean("whether the values are equally spaced");
    model.ValuesGiven[v] = true;
  }
  requireRoom(file, model.LastPoint, "function values");
}

void readValueLists(InputFile& file, Dimension& model) {
  for (Long d = 0; d < kMaxVariables; ++d) {
    ResizeVarValues(model, d);
    if (model.LastPoint[d] != 0)
      readInOrder(file, "a value of a variable", valueList(model, d).data(), valueList(model, d).size());
  }
}

constexpr std::size_t kPlacesAhead = 16;

// Puts numbers that come with the last index fastest into their places in the table, whose first index is fastest.
class TableFiller {
 public:
  explicit TableFiller(Table4& table) : table_(table), run_(lineAxis(table)) {}

  void put(std::span<const double> numbers) {
    for (const double number : numbers) {
      line_[at_ * stride_] = number;
      prefetch(line_ + (at_ + kPlacesAhead) * stride_);
      if (++at_ == length_) nextLine();
    }
  }

 private:
  // A run of numbers is a line along the last axis that has more than one value.
  static int lineAxis(const Table4& table) {
    int axis = kMaxVariables - 1;
    while (axis > 0 && table.last()[axis] == 0) --axis;
    return axis;
  }

  void nextLine() {
    at_ = 0;
    for (int k = run_ - 1; k >= 0; --k) {
      if (++index_[k] <= last_[k]) break;
      index_[k] = 0;
    }
    line_ = &table_(index_[0], index_[1], index_[2], index_[3]);
  }

  Table4& table_;
  int run_;
  std::size_t stride_ = table_.stride(run_);
  std::size_t length_ = table_.extent(run_);
  PerVariable<Long> last_ = table_.last();
  PerVariable<Long> index_{};
  double* line_ = table_.data();
  std::size_t at_ = 0;
};

void readFunction(InputFile& file, Dimension& model) {
  model.F.redim(model.LastPoint);
  TableFiller filler(model.F);
  file.readDoubles("a value of the function", model.F.size(),
                   [&](std::span<const double> numbers) { filler.put(numbers); });
}

void readStatistics(InputFile& file, Dimension& model) {
  model.NumGridPoints = file.readLong("the number of grid points");
  model.CorrCoef = file.readDouble("the correlation coefficient");
  model.StdErr = file.readDouble("the standard error");
  model.SumRes2 = file.readDouble("the sum of squared residuals");
  model.AvgGiven = file.readDouble("the average of the given values");
  model.AvgEstimated = file.readDouble("the average of the estimated values");
}

// The number of variables in the values file holds: where it is the smaller one, the further variables go, and with
// them the coefficients of all their powers but the lowest.
void forgetFurtherVariables(Dimension& model) {
  for (Long v = model.LastVar + 1; v < kMaxVariables; ++v) {
    model.VarName[v].clear();
    model.LowerLimit[v] = model.UpperLimit[v] = model.Centre[v] = model.Period[v] = 0.0;
    model.PeriodFlag[v] = false;
    model.Degree[v] = 0;
  }
  if (model.FitDone) model.Coef.resizeKeeping(model.Degree);
}

void readValues(const std::string& path, Dimension& model) {
  InputFile file(path);
  model.LastVar = readLastVar(file);
  forgetFurtherVariables(model);
  readCounts(file, model);
  readValueLists(file, model);
  readFunction(file, model);
  if (model.FitDone) readStatistics(file, model);
  file.expectEnd();
}

// What is not part of a problem: the state of the run.
void keepRunState(Dimension& opened, const Dimension& model) {
  opened.CurVar = model.CurVar;
  opened.LoadingFile = model.LoadingFile;
  opened.Updating = model.Updating;
  opened.x = model.x;
  opened.t = model.t;
  opened.S3 = model.S3;
  opened.FileName = model.FileName;
  opened.WorkDir = model.WorkDir;
  opened.V = model.V;
  if (opened.FitDone) return;
  opened.CorrCoef = model.CorrCoef;
  opened.StdErr = model.StdErr;
  opened.SumRes2 = model.SumRes2;
  opened.AvgGiven = model.AvgGiven;
  opened.AvgEstimated = model.AvgEstimated;
}

}  // namespace

CentreTexts readProblem(const std::string& path, Dimension& model) {
  Dimension opened;
  const PairPaths pair = readablePair(path);
  CentreTexts centres = readSpecification(pair.specification, opened);
  readValues(pair.values, opened);
  keepRunState(opened, model);
  model = std::move(opened);
  return centres;
}

}  // namespace tavimor
