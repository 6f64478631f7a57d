#include "analysis/pictures/surface_map.h"

#include <algorithm>
#include <cmath>

#include "analysis/pictures/round_numbers.h"

namespace tavimor {

namespace {

constexpr std::size_t kCells = 301;         // of the colours, along each side
constexpr std::size_t kContourCells = 101;  // of the contour lines: straight pieces this short look round
constexpr int kMostLevels = 12;
constexpr std::size_t kMostPoints = 2500;

std::string isNotFinite(const Problem& problem, Long k) {
  return "The values of " + problem.VarName[k] + " are not all finite numbers.";
}

FittedFunction heldBut(const FittedFunction& function, const MapChoice& choice) {
  FittedFunction sheet = function;
  for (Long k = 0; k < kMaxVariables; ++k)
    if (k != choice.x && k != choice.y) sheet = sheet.heldAt(k, choice.at[k]);
  return sheet;
}

// False where the held values are not those of grid points: there are none to show then.
bool findHeldIndices(const Problem& problem, const MapChoice& choice, PerVariable<Long>& held) {
  for (Long k = 0; k <= problem.LastVar; ++k) {
    if (k == choice.x || k == choice.y) continue;
    const std::optional<Long> index = gridIndexOf(problem, k, choice.at[k]);
    if (!index) return false;
    held[k] = *index;
  }
  return true;
}

// The grid's numbers over the two variables, by the indices of their values.
class GridSheet {
 public:
  GridSheet(const ShownFit& fit, const MapChoice& choice, const PerVariable<Long>& held)
      : fit_(fit), choice_(choice), held_(held) {}

  double at(Long i, Long j) const {
    PerVariable<Long> index = held_;
    index[choice_.x] = i;
    index[choice_.y] = j;
    const double given = fit_.problem().F(index), residual = fit_.residual(index);
    switch (choice_.of) {
      case MapOf::Given: return given;
      case MapOf::Residual: return residual;
      case MapOf::RelativeResidual: return given == 0.0 ? NAN : residual / std::fabs(given);
      case MapOf::Fit: break;
    }
    return given - residual;
  }

 private:
  const ShownFit& fit_;
  const MapChoice& choice_;
  const PerVariable<Long>& held_;
};

Sheet nearestOnGrid(const Problem& problem, const MapChoice& choice, const GridSheet& grid, Sheet sheet) {
  const std::vector<Long> columns = nearestIndices(problem, choice.x, sheet.x);
  const std::vector<Long> rows = nearestIndices(problem, choice.y, sheet.y);
  sheet.values.reserve(columns.size() * rows.size());
  for (const Long j : rows)
    for (const Long i : columns) sheet.values.push_back(grid.at(i, j));
  return sheet;
}

// The different values of a variable in ascending order, no more than are wanted, as indices.
std::vector<Long> ascendingIndices(const Problem& problem, Long k, std::size_t most) {
  const std::span<const double> values = gridValues(problem, k);
  std::vector<Long> order(values.size());
  for (Long i = 0; i < std::ssize(order); ++i) order[i] = i;
  std::stable_sort(order.begin(), order.end(), [&](Long a, Long b) { return values[a] < values[b]; });
  const auto same = [&](Long a, Long b) { return values[a] == values[b]; };
  order.erase(std::unique(order.begin(), order.end(), same), order.end());
  if (order.size() <= most) return order;
  std::vector<Long> some;
  for (std::size_t n = 0; n < most; ++n) some.push_back(order[n * (order.size() - 1) / (most - 1)]);
  return some;
}

Sheet givenSheet(const Problem& problem, const MapChoice& choice, const GridSheet& grid) {
  Sheet sheet;
  const std::vector<Long> columns = ascendingIndices(problem, choice.x, kContourCells);
  const std::vector<Long> rows = ascendingIndices(problem, choice.y, kContourCells);
  for (const Long i : columns) sheet.x.push_back(gridValues(problem, choice.x)[i]);
  for (const Long j : rows) sheet.y.push_back(gridValues(problem, choice.y)[j]);
  for (const Long j : rows)
    for (const Long i : columns) sheet.values.push_back(grid.at(i, j));
  return sheet;
}

Sheet fitSheet(const ShownFit& fit, const MapChoice& choice, Sheet sheet) {
  sheet.values = heldBut(fit.function(), choice).over(choice.x, sheet.x, choice.y, sheet.y);
  return sheet;
}

void addPoints(const Problem& problem, const MapChoice& choice, SurfaceMap& map) {
  const std::span<const double> x = gridValues(problem, choice.x), y = gridValues(problem, choice.y);
  if (x.size() * y.size() > kMostPoints) return;
  for (std::size_t j = 0; j < y.size(); ++j)
    for (std::size_t i = 0; i < x.size(); ++i) {
      PerVariable<Long> index = map.heldIndex;
      index[choice.x] = static_cast<Long>(i);
      index[choice.y] = static_cast<Long>(j);
      map.points.push_back({x[i], y[j], gridNumberOf(problem.F.last(), index)});
    }
}

bool isResidual(MapOf of) { return of == MapOf::Residual || of == MapOf::RelativeResidual; }

std::string whyNot(const ShownFit& fit, const MapChoice& choice) {
  const Problem& problem = fit.problem();
  if (const std::string reason = noFitText(fit); !reason.empty()) return reason;
  if (problem.LastVar == 0 || choice.x == choice.y) return "A map takes two variables.";
  for (const Long k : {choice.x, choice.y})
    if (!shownRange(problem, k).isFinite()) return isNotFinite(problem, k);
  if (isResidual(choice.of) && fit.residualsAreZero)
    return "The residuals are 0 as far as can be told: there is nothing to show.";
  return {};
}

std::string offTheGrid(const Problem& problem, const MapChoice& choice) {
  for (Long k = 0; k <= problem.LastVar; ++k)
    if (k != choice.x && k != choice.y && !gridIndexOf(problem, k, choice.at[k]))
      return "No values are given at " + pointText(problem, choice.at, {k == 0, k == 1, k == 2, k == 3}) +
             ": choose a value of the grid.";
  return {};
}

void fill(const ShownFit& fit, const MapChoice& choice, bool isOnGrid, SurfaceMap& map) {
  const Problem& problem = fit.problem();
  const ShownRange x = shownRange(problem, choice.x), y = shownRange(problem, choice.y);
  const Sheet cells{spacedOver(x, kCells), spacedOver(y, kCells), {}};
  const GridSheet grid(fit, choice, map.heldIndex);
  Sheet lines;
  if (choice.of == MapOf::Fit) {
    map.sheet = fitSheet(fit, choice, cells);
    lines = fitSheet(fit, choice, {spacedOver(x, kContourCells), spacedOver(y, kContourCells), {}});
  } else {
    map.sheet = nearestOnGrid(problem, choice, grid, cells);
    if (choice.of == MapOf::Given) lines = givenSheet(problem, choice, grid);
  }
  map.scale = isResidual(choice.of) ? ColourScale::Deviations : ColourScale::Values;
  map.range = colourRange(map.scale, map.sheet.values);
  if (!(map.range.least < map.range.largest)) map.notShown = "There is no finite value to show here.";
  map.contours = contourLines(lines, roundNumbersBetween(map.range.least, map.range.largest, kMostLevels));
  if (isOnGrid) addPoints(problem, choice, map);
}

}  // namespace

SurfaceMap mapOf(const ShownFit& fit, const MapChoice& choice) {
  SurfaceMap map;
  map.notShown = whyNot(fit, choice);
  if (!map.notShown.empty()) return map;
  const bool isOnGrid = findHeldIndices(fit.problem(), choice, map.heldIndex);
  if (!isOnGrid && choice.of != MapOf::Fit)
    map.notShown = offTheGrid(fit.problem(), choice);
  else
    fill(fit, choice, isOnGrid, map);
  return map;
}

std::string mapQuantity(MapOf of) {
  switch (of) {
    case MapOf::Fit: return "fitted value";
    case MapOf::Given: return "given value";
    case MapOf::Residual: return "residual";
    case MapOf::RelativeResidual: return "relative residual";
  }
  return "";
}

std::string mapText(const ShownFit& fit, const MapChoice& choice, const SurfaceMap& map) {
  if (!map.notShown.empty()) return map.notShown;
  const Problem& problem = fit.problem();
  PerVariable<bool> held{};
  for (Long k = 0; k <= problem.LastVar; ++k) held[k] = k != choice.x && k != choice.y;
  const std::string heldAt = pointText(problem, choice.at, held);
  std::size_t least = 0, largest = 0;
  const std::vector<double>& values = map.sheet.values;
  for (std::size_t n = 0; n < values.size(); ++n) {
    if (std::isnan(values[least]) || values[n] < values[least]) least = n;
    if (std::isnan(values[largest]) || values[n] > values[largest]) largest = n;
  }
  const auto place = [&](Long k, double number) {
    const double at =
        choice.of == MapOf::Fit ? number : gridValues(problem, k)[nearestIndices(problem, k, {&number, 1})[0]];
    return problem.VarName[k] + " = " + shortNumber(at);
  };
  const auto placed = [&](std::size_t n) {
    const std::size_t columns = map.sheet.x.size();
    return shortNumber(values[n]) + " at " + place(choice.x, map.sheet.x[n % columns]) + ", " +
           place(choice.y, map.sheet.y[n / columns]);
  };
  return "The " + mapQuantity(choice.of) + " over " + problem.VarName[choice.x] + " and " + problem.VarName[choice.y] +
         (heldAt.empty() ? "" : " at " + heldAt) + ": least " + placed(least) + ", largest " + placed(largest) + "." +
         (map.points.empty() ? "" : " " + std::to_string(map.points.size()) + " grid points are marked.");
}

}  // namespace tavimor
