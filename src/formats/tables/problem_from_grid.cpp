#include "formats/tables/problem_from_grid.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "formats/tables/table_format.h"
#include "model/spec_fields.h"
#include "model/value_lists.h"
#include "runtime/long.h"
#include "runtime/text.h"

namespace tavimor {

namespace {

bool isEquallySpaced(const std::vector<double>& values, double step) {
  for (std::size_t i = 0; i < values.size(); ++i)
    if (values[i] != values.front() + static_cast<double>(i) * step) return false;
  return true;
}

void declareVariable(Problem& problem, Long k, std::vector<double> values) {
  problem.LowerLimit[k] = values.front();
  problem.UpperLimit[k] = values.back();
  problem.LastPoint[k] = static_cast<Long>(values.size()) - 1;
  problem.Step[k] = (values.back() - values.front()) / problem.LastPoint[k];
  problem.EquallySpaced[k] = isEquallySpaced(values, problem.Step[k]);
  problem.Degree[k] = 1;
  problem.ValuesGiven[k] = true;
  problem.PeriodFlag[k] = true;
  valueList(problem, k) = std::move(values);
}

// What is given for variable k: one entry for each, or one for all.
template <class T>
const T& entry(const std::vector<T>& entries, Long k) {
  return entries.size() == 1 ? entries.front() : entries[k];
}

bool isMiscounted(std::size_t entries, std::size_t variables) { return entries > 1 && entries != variables; }

std::size_t variableCount(const Problem& problem) { return static_cast<std::size_t>(problem.LastVar) + 1; }

void setDegrees(Problem& problem, const std::vector<Long>& degrees, std::vector<TableFinding>& findings) {
  if (isMiscounted(degrees.size(), variableCount(problem))) {
    findings.push_back(degreesAreMiscounted(degrees.size(), variableCount(problem)));
    return;
  }
  for (Long k = 0; k <= problem.LastVar && !degrees.empty(); ++k) {
    problem.Degree[k] = entry(degrees, k);
    if (problem.Degree[k] < 0 || problem.Degree[k] > problem.LastPoint[k])
      findings.push_back(
          degreeIsTooHigh(problem.Degree[k], problem.VarName[k], static_cast<std::size_t>(problem.LastPoint[k]) + 1));
  }
}

std::optional<TableFinding> findingAboutCentre(const Problem& problem, Long k, const std::string& text) {
  if (text != "*" && !cellNumber(text, DecimalMark::Point)) return centreIsNoNumber(text);
  if (!givesCentre(text, problem.LowerLimit[k], problem.UpperLimit[k])) return limitsHaveNoMiddle(problem.VarName[k]);
  return std::nullopt;
}

void setCentres(Problem& problem, const std::vector<std::string>& centres, std::vector<TableFinding>& findings) {
  if (isMiscounted(centres.size(), variableCount(problem))) {
    findings.push_back(centresAreMiscounted(centres.size(), variableCount(problem)));
    return;
  }
  for (Long k = 0; k <= problem.LastVar; ++k) {
    const std::string text = centres.empty() ? "*" : entry(centres, k);
    if (const auto finding = findingAboutCentre(problem, k, text))
      findings.push_back(*finding);
    else
      problem.Centre[k] = centreFromText(text, problem.LowerLimit[k], problem.UpperLimit[k]);
  }
}

bool isTaken(const std::vector<std::string>& names, const std::string& name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

}  // namespace

std::vector<std::string> variableNames(const std::vector<std::string>& columns) {
  static constexpr std::array<const char*, kMaxVariables> defaults = {"x", "y", "z", "w"};
  std::vector<std::string> names;
  for (std::size_t k = 0; k < columns.size(); ++k) {
    std::string name(trimmed(std::string_view(columns[k]).substr(0, columns[k].find_first_of(",\r\n"))));
    if (name.empty()) name = defaults[k];
    std::string unique = name;
    for (int n = 2; isTaken(names, unique); ++n) unique = name + std::to_string(n);
    names.push_back(unique);
  }
  return names;
}

Problem problemFromGrid(GridFunction grid, const std::vector<std::string>& names) {
  Problem problem;
  problem.LastVar = static_cast<Long>(names.size()) - 1;
  problem.NumGridPoints = 1;
  for (Long k = 0; k <= problem.LastVar; ++k) {
    problem.VarName[k] = names[k];
    declareVariable(problem, k, std::move(grid.values[k]));
    problem.NumGridPoints = multiplyLongs(problem.NumGridPoints, problem.LastPoint[k] + 1);
  }
  problem.F = std::move(grid.F);
  return problem;
}

std::vector<TableFinding> setDegreesAndCentres(Problem& problem, const std::vector<Long>& degrees,
                                               const std::vector<std::string>& centres) {
  std::vector<TableFinding> findings;
  setDegrees(problem, degrees, findings);
  setCentres(problem, centres, findings);
  return findings;
}

}  // namespace tavimor
