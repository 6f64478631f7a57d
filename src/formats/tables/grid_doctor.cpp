#include "formats/tables/grid_doctor.h"

#include <algorithm>
#include <array>
#include <limits>

#include "formats/tables/largest_grid.h"
#include "runtime/long.h"
#include "runtime/number_text.h"

namespace tavimor {

namespace {

constexpr std::uint64_t kSparse = 10;  // a grid of which less than this part is there is no grid with gaps

PerVariable<Long> lastIndices(const std::vector<std::vector<double>>& values) {
  PerVariable<Long> last{};
  for (std::size_t k = 0; k < values.size(); ++k) last[k] = static_cast<Long>(values[k].size()) - 1;
  return last;
}

PerVariable<std::size_t> strides(const Table4& table) {
  PerVariable<std::size_t> strides{};
  for (int k = 0; k < kMaxVariables; ++k) strides[k] = table.stride(k);
  return strides;
}

std::vector<std::vector<double>> allValues(const GridPoints& points) {
  std::vector<std::vector<double>> values;
  for (const auto& variable : points.variables) values.push_back(variable.values);
  return values;
}

// The usual table, as many rows as points: each row goes to its place, and no place may be taken twice.
std::optional<GridFunction> gridOfDifferentRows(const GridPoints& points) {
  GridFunction grid{allValues(points), {}};
  grid.F.redim(lastIndices(grid.values));
  const PerVariable<std::size_t> stride = strides(grid.F);
  std::vector<bool> isThere(grid.F.size());
  for (std::size_t row = 0; row < points.rows(); ++row) {
    std::size_t place = 0;
    for (std::size_t k = 0; k < points.variables.size(); ++k) place += points.variables[k].index[row] * stride[k];
    if (isThere[place]) return std::nullopt;
    isThere[place] = true;
    grid.F.data()[place] = points.function[row];
  }
  return grid;
}

// The index of each kept value among the kept ones.
std::vector<std::vector<std::size_t>> newIndices(const std::vector<std::vector<bool>>& kept) {
  std::vector<std::vector<std::size_t>> indices;
  for (const auto& values : kept) {
    indices.emplace_back();
    std::size_t next = 0;
    for (const bool isKept : values) indices.back().push_back(isKept ? next++ : 0);
  }
  return indices;
}

std::vector<std::vector<bool>> allKept(const GridPoints& points) {
  std::vector<std::vector<bool>> kept;
  for (const auto& variable : points.variables) kept.emplace_back(variable.values.size(), true);
  return kept;
}

// The points of the grid of the kept values, which must all be there.
GridFunction gridOf(const GridPoints& points, const SortedPoints& sorted, const std::vector<std::vector<bool>>& kept) {
  GridFunction grid;
  for (std::size_t k = 0; k < kept.size(); ++k) {
    grid.values.emplace_back();
    for (std::size_t i = 0; i < kept[k].size(); ++i)
      if (kept[k][i]) grid.values[k].push_back(points.variables[k].values[i]);
  }
  grid.F.redim(lastIndices(grid.values));
  const PerVariable<std::size_t> stride = strides(grid.F);
  const auto newIndex = newIndices(kept);
  for (std::size_t n = 0; n < sorted.count(); ++n) {
    const std::size_t row = sorted.rows[sorted.first[n]];
    std::size_t place = 0;
    bool isKept = true;
    for (std::size_t k = 0; k < kept.size(); ++k) {
      const std::uint32_t i = points.variables[k].index[row];
      isKept = isKept && kept[k][i];
      place += newIndex[k][i] * stride[k];
    }
    if (isKept) grid.F.data()[place] = functionAt(points, sorted, n);
  }
  return grid;
}

std::vector<std::string> leftOutTexts(const GridPoints& points, const FullGrid& full) {
  std::vector<std::string> texts;
  for (const auto& [variable, value] : full.leftOut) {
    if (texts.size() == kMostNamed) {
      texts.push_back(countText(full.leftOut.size() - kMostNamed, "more value", "more values"));
      break;
    }
    texts.push_back(points.variables[variable].name + "=" + numberText(points.variables[variable].values[value]));
  }
  return texts;
}

void diagnoseDoubles(const GridPoints& points, const SortedPoints& sorted, Duplicates duplicates,
                     std::vector<TableFinding>& findings) {
  if (sorted.count() == points.rows()) return;
  std::uint64_t count = 0;
  const auto first = firstDoublePoints(points, sorted, count);
  findings.push_back(duplicates == Duplicates::Mean ? meansAreTaken(first, count) : pointsAreDouble(first, count));
}

TableFinding dependence(const GridPoints& points, const DependentVariable& dependent) {
  const ColumnLabel& column = points.variables[dependent.variable].column;
  if (!dependent.from) return columnFollowsFromOthers(column);
  return columnFollows(column, points.variables[*dependent.from].column);
}

// Whether the grid is full, or can be made so. Refusals otherwise; the values to keep where there are none.
std::vector<std::vector<bool>> diagnoseGaps(const GridPoints& points, const SortedPoints& sorted, Gaps gaps,
                                            std::vector<TableFinding>& findings) {
  const auto size = gridSize(points);
  if (size && *size == sorted.count()) return allKept(points);
  if (const auto dependent = findDependentVariable(points, sorted)) {
    findings.push_back(dependence(points, *dependent));
    return {};
  }
  if (!size || sorted.count() < *size / kSparse) {
    findings.push_back(pointsAreScattered(sorted.count(), extentsText(points)));
    return {};
  }
  const auto full = largestFullGrid(points, sorted);
  if (gaps == Gaps::Shrink) {
    findings.push_back(full ? gridIsShrunk(leftOutTexts(points, *full), full->lostPoints, sorted.count())
                            : noFullGridStays());
    return full ? full->kept : std::vector<std::vector<bool>>();
  }
  const std::string wayOut =
      full ? wayOutText(leftOutTexts(points, *full), full->lostPoints, sorted.count()) : noWayOutText();
  findings.push_back(
      pointsAreMissing(firstMissingPoints(points, sorted, *size), *size - sorted.count(), *size, wayOut));
  return {};
}

}  // namespace

GridDiagnosis diagnoseGrid(const GridPoints& points, Duplicates duplicates, Gaps gaps) {
  GridDiagnosis diagnosis;
  constexpr auto most = static_cast<std::uint64_t>(std::numeric_limits<Long>::max());
  if (points.rows() > most) {
    diagnosis.findings.push_back(gridIsTooLarge());
    return diagnosis;
  }
  if (gridSize(points) == points.rows()) diagnosis.grid = gridOfDifferentRows(points);
  if (diagnosis.grid) return diagnosis;
  const SortedPoints sorted = sortPoints(points);
  diagnoseDoubles(points, sorted, duplicates, diagnosis.findings);
  const auto kept = diagnoseGaps(points, sorted, gaps, diagnosis.findings);
  if (!anyRefusal(diagnosis.findings)) diagnosis.grid = gridOf(points, sorted, kept);
  return diagnosis;
}

}  // namespace tavimor
