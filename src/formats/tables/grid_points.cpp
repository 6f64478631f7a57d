#include "formats/tables/grid_points.h"

#include <algorithm>
#include <limits>
#include <numeric>

#include "formats/tables/column_values.h"
#include "runtime/number_text.h"

namespace tavimor {

namespace {

constexpr std::size_t kFewestRowsOfAPattern = 4;

std::vector<std::uint64_t> pointNumbers(const GridPoints& points) {
  std::vector<std::uint64_t> numbers(points.rows());
  for (std::size_t row = 0; row < numbers.size(); ++row) numbers[row] = pointNumber(points, row);
  return numbers;
}

std::size_t differentPointsWithout(const GridPoints& points, std::size_t variable) {
  GridPoints others;
  for (std::size_t k = 0; k < points.variables.size(); ++k)
    if (k != variable) others.variables.push_back(points.variables[k]);
  others.function.resize(points.rows());
  std::vector<std::uint64_t> numbers = pointNumbers(others);
  std::sort(numbers.begin(), numbers.end());
  return static_cast<std::size_t>(std::unique(numbers.begin(), numbers.end()) - numbers.begin());
}

bool riseOrFallTogether(const LargeList<std::uint32_t>& index, const LargeList<std::uint32_t>& from) {
  std::vector<std::uint32_t> order(index.size());
  std::iota(order.begin(), order.end(), 0);
  std::sort(order.begin(), order.end(), [&](std::uint32_t a, std::uint32_t b) { return from[a] < from[b]; });
  const auto monotone = [&](auto outOfOrder) {
    return std::adjacent_find(order.begin(), order.end(), [&](std::uint32_t a, std::uint32_t b) {
             return outOfOrder(index[a], index[b]);
           }) == order.end();
  };
  return monotone(std::greater_equal<>()) || monotone(std::less_equal<>());
}

}  // namespace

std::optional<std::uint64_t> gridSize(const GridPoints& points) {
  std::uint64_t size = 1;
  for (const auto& variable : points.variables) {
    if (size > std::numeric_limits<std::uint64_t>::max() / variable.values.size()) return std::nullopt;
    size *= variable.values.size();
  }
  return size;
}

std::uint64_t pointNumber(const GridPoints& points, std::size_t row) {
  std::uint64_t number = 0;
  for (const auto& variable : points.variables) number = number * variable.values.size() + variable.index[row];
  return number;
}

std::string pointText(const GridPoints& points, std::uint64_t number) {
  std::string text;
  for (auto variable = points.variables.rbegin(); variable != points.variables.rend(); ++variable) {
    const double value = variable->values[number % variable->values.size()];
    text.insert(0, variable->name + "=" + numberText(value) + (text.empty() ? "" : ", "));
    number /= variable->values.size();
  }
  return text;
}

std::string extentsText(const GridPoints& points) {
  std::string text;
  for (const auto& variable : points.variables)
    text += (text.empty() ? "" : " x ") + std::to_string(variable.values.size());
  return text;
}

SortedPoints sortPoints(const GridPoints& points) {
  SortedPoints sorted;
  const std::vector<std::uint64_t> numbers = pointNumbers(points);
  sorted.rows.resize(numbers.size());
  std::iota(sorted.rows.begin(), sorted.rows.end(), 0);
  if (!std::is_sorted(numbers.begin(), numbers.end()))
    std::sort(sorted.rows.begin(), sorted.rows.end(), [&](std::uint32_t a, std::uint32_t b) {
      return numbers[a] != numbers[b] ? numbers[a] < numbers[b] : a < b;
    });
  sorted.numbers.reserve(numbers.size());
  sorted.first.reserve(numbers.size() + 1);
  for (std::size_t n = 0; n < sorted.rows.size(); ++n) {
    const std::uint64_t number = numbers[sorted.rows[n]];
    if (!sorted.numbers.empty() && sorted.numbers.back() == number) continue;
    sorted.numbers.push_back(number);
    sorted.first.push_back(static_cast<std::uint32_t>(n));
  }
  sorted.first.push_back(static_cast<std::uint32_t>(sorted.rows.size()));
  return sorted;
}

std::vector<DoublePoint> firstDoublePoints(const GridPoints& points, const SortedPoints& sorted, std::uint64_t& count) {
  std::vector<DoublePoint> doubles;
  count = 0;
  for (std::size_t n = 0; n < sorted.count(); ++n) {
    if (sorted.rowsOf(n) == 1) continue;
    if (++count > kMostNamed) continue;
    DoublePoint& point = doubles.emplace_back();
    point.point = pointText(points, sorted.numbers[n]);
    point.lineCount = sorted.rowsOf(n);
    for (std::size_t r = sorted.first[n]; r < sorted.first[n + 1] && point.lines.size() < kMostNamed; ++r) {
      point.lines.push_back(points.lines[sorted.rows[r]]);
      point.values.push_back(points.function[sorted.rows[r]]);
    }
  }
  return doubles;
}

std::vector<std::string> firstMissingPoints(const GridPoints& points, const SortedPoints& sorted, std::uint64_t size) {
  std::vector<std::string> missing;
  std::uint64_t expected = 0;
  const auto addUpTo = [&](std::uint64_t number) {
    for (; expected < number && missing.size() < kMostNamed; ++expected) missing.push_back(pointText(points, expected));
    expected = number + 1;
  };
  for (const std::uint64_t number : sorted.numbers) addUpTo(number);
  if (expected < size) addUpTo(size);
  return missing;
}

double functionAt(const GridPoints& points, const SortedPoints& sorted, std::size_t n) {
  const double first = points.function[sorted.rows[sorted.first[n]]];
  double sum = 0.0;
  bool allEqual = true;
  for (std::size_t r = sorted.first[n]; r < sorted.first[n + 1]; ++r) {
    const double value = points.function[sorted.rows[r]];
    allEqual = allEqual && value == first;
    sum += value;
  }
  return allEqual ? first : sum / static_cast<double>(sorted.rowsOf(n));
}

bool follows(const LargeList<std::uint32_t>& index, const LargeList<std::uint32_t>& from, std::size_t valuesOfFrom) {
  std::vector<std::uint32_t> indexAt(valuesOfFrom, kNoIndex);
  std::size_t rows = 0;
  for (std::size_t row = 0; row < index.size(); ++row) {
    if (from[row] == kNoIndex || index[row] == kNoIndex) return false;
    std::uint32_t& known = indexAt[from[row]];
    if (known != kNoIndex && known != index[row]) return false;
    known = index[row];
    ++rows;
  }
  return valuesOfFrom < rows || (rows >= kFewestRowsOfAPattern && riseOrFallTogether(index, from));
}

std::optional<DependentVariable> findDependentVariable(const GridPoints& points, const SortedPoints& sorted) {
  const std::size_t variables = points.variables.size();
  for (std::size_t k = 1; k < variables; ++k)
    for (std::size_t from = 0; from < k; ++from) {
      const auto& a = points.variables[from];
      const auto& b = points.variables[k];
      if (follows(b.index, a.index, a.values.size())) return DependentVariable{k, from};
      if (follows(a.index, b.index, b.values.size())) return DependentVariable{from, k};
    }
  for (std::size_t k = variables; variables > 2 && k-- > 0;)
    if (differentPointsWithout(points, k) == sorted.count() && sorted.count() >= kFewestRowsOfAPattern)
      return DependentVariable{k, std::nullopt};
  return std::nullopt;
}

}  // namespace tavimor
