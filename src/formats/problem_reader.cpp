#include "formats/problem_reader.h"

#include <algorithm>
#include <limits>
#include <numbers>
#include <optional>
#include <span>
#include <utility>

#include "formats/function_reader.h"
#include "formats/readable_pair.h"
#include "model/spec_fields.h"
#include "model/value_lists.h"
#include "platform/file_query.h"
#include "runtime/bad_file.h"
#include "runtime/input_file.h"
#include "runtime/number_text.h"
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

std::string readRecord(InputFile& file, Problem& problem, Long v) {
  problem.VarName[v] = file.readText("the name of a variable");
  problem.LowerLimit[v] = file.readDouble("the lower limit");
  problem.UpperLimit[v] = file.readDouble("the upper limit");
  std::string centre = file.readText("the centre of expansion");
  if (!givesCentre(centre, problem.LowerLimit[v], problem.UpperLimit[v]))
    file.refuse("a number as the centre of expansion, since the limits have no middle", "\"*\"");
  problem.Centre[v] = centreFromText(centre, problem.LowerLimit[v], problem.UpperLimit[v]);
  problem.PeriodFlag[v] = file.readBoolean("the period flag");
  const std::string period = file.readText("the period");
  problem.Period[v] = period == "*" ? 2 * std::numbers::pi : Val(period);
  problem.Degree[v] = file.readLong("the degree", 0, kMostLastIndex);
  return centre;
}

void readCoefficients(InputFile& file, const PerVariable<Long>& Degree, Table4& Coef) {
  requireRoom(file, Degree, "coefficients");
  Coef.redim(Degree);
  file.readDoubles("a coefficient", {Coef.data(), Coef.size()});  // first index fastest, as in memory
}

void readSpecification(InputFile file, StoredProblem& stored) {
  Problem& problem = stored.problem;
  problem.LastVar = readLastVar(file);
  for (Long v = 0; v <= problem.LastVar; ++v) stored.centres[v] = readRecord(file, problem, v);
  stored.fit.FitDone = file.readBoolean("whether there is a fit");
  if (stored.fit.FitDone) readCoefficients(file, problem.Degree, stored.fit.Coef);
  file.expectEnd();
}

void readCounts(InputFile& file, Problem& problem) {
  for (Long v = 0; v <= problem.LastVar; ++v) {
    problem.LastPoint[v] = file.readLong("the number of values less one", 0, kMostLastIndex);
    problem.EquallySpaced[v] = file.readBoolean("whether the values are equally spaced");
    problem.ValuesGiven[v] = true;
  }
  requireRoom(file, problem.LastPoint, "function values");
}

// The list grows as it is read: what a part of it holds before is written while it is in the cache.
void readList(InputFile& file, Long last, std::vector<double>& values) {
  constexpr std::size_t part = 4096;
  const std::size_t count = static_cast<std::size_t>(last) + 1;
  values.clear();
  while (values.size() < count) {
    const std::size_t first = values.size();
    values.resize(std::min(first + part, count));
    file.readDoubles("a value of a variable", std::span(values).subspan(first));
  }
}

void readValueLists(InputFile& file, Problem& problem) {
  for (Long d = 0; d < kMaxVariables; ++d) {
    ReserveVarValues(problem, d);
    if (problem.LastPoint[d] != 0) readList(file, problem.LastPoint[d], valueList(problem, d));
    ResizeVarValues(problem, d);
  }
}

void readStatistics(InputFile& file, StoredProblem& stored) {
  stored.problem.NumGridPoints = file.readLong("the number of grid points");
  stored.fit.CorrCoef = file.readDouble("the correlation coefficient");
  stored.fit.StdErr = file.readDouble("the standard error");
  stored.fit.SumRes2 = file.readDouble("the sum of squared residuals");
  stored.fit.AvgGiven = file.readDouble("the average of the given values");
  stored.fit.AvgEstimated = file.readDouble("the average of the estimated values");
}

// The number of variables in the values file holds: where it is the smaller one, the further variables go, and with
// them the coefficients of all their powers but the lowest.
void takeLastVar(Long lastVar, StoredProblem& stored) {
  stored.problem.LastVar = lastVar;
  for (Long v = lastVar + 1; v < kMaxVariables; ++v) ClearVariable(stored.problem, v);
  if (stored.fit.FitDone) stored.fit.Coef.resizeKeeping(stored.problem.Degree);
}

void readValues(InputFile file, StoredProblem& stored) {
  takeLastVar(readLastVar(file), stored);
  readCounts(file, stored.problem);
  readValueLists(file, stored.problem);
  stored.problem.F.redim(stored.problem.LastPoint);
  readFunction(file, stored.problem.F);
  if (stored.fit.FitDone) readStatistics(file, stored);
  file.expectEnd();
}

// A few long names can make the listing of many coefficients a thousand times as large as the files. Where no fit is
// stored and none can be made, there is none.
void requireShortListing(const std::string& path, const StoredProblem& stored) {
  constexpr double fewCharacters = 200.0, mostCharacters = 128e6;
  const Problem& problem = stored.problem;
  double lines = 1.0, names = 0.0;
  for (Long v = 0; v <= problem.LastVar; ++v) {
    if (!stored.fit.FitDone && problem.Degree[v] > problem.LastPoint[v]) return;
    lines *= problem.Degree[v] + 1.0;
    names += static_cast<double>(problem.VarName[v].size());
  }
  if (names <= fewCharacters || lines * names <= mostCharacters) return;
  throw BadFile(path, 2, "names short enough to list " + numberText(lines) + " coefficients",
                numberText(names) + " characters");
}

double sizeOf(const FileHandle& file) {
  FileFacts facts;
  return file && queryFile(file.get(), facts) ? static_cast<double>(facts.size) : 0.0;
}

}  // namespace

StoredProblem readProblem(const std::string& path, const Progress& progress) {
  StoredProblem stored;
  OpenPair pair = openPair(path);
  const double first = sizeOf(pair.specification), second = sizeOf(pair.values);
  const double part = first / std::max(first + second, 1.0);
  InputFile specification(std::move(pair.specification), pair.paths.specification);
  if (progress) specification.setProgress([&](double share) { progress(share * part); });
  readSpecification(std::move(specification), stored);
  InputFile values(std::move(pair.values), pair.paths.values);
  if (progress) values.setProgress([&](double share) { progress(part + share * (1.0 - part)); });
  readValues(std::move(values), stored);
  requireShortListing(pair.paths.specification, stored);
  return stored;
}

}  // namespace tavimor
