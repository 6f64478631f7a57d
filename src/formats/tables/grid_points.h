#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "formats/tables/large_list.h"
#include "formats/tables/table_findings.h"
#include "model/table4.h"

namespace tavimor {

/// Points of a function, each a row: the values of the variables, which of them each row has, and the function there.
struct GridPoints {
  struct Variable {
    std::string name;
    ColumnLabel column;
    std::vector<double> values;      // ascending
    LargeList<std::uint32_t> index;  // of each row
  };

  std::vector<Variable> variables;  // one to four
  LargeList<double> function;       // of each row
  LargeList<std::uint32_t> lines;

  std::size_t rows() const { return function.size(); }
};

/// The number of points of the grid that the values make; nothing where 64 bits cannot count them.
std::optional<std::uint64_t> gridSize(const GridPoints& points);

/// A point of the grid as one number, the first variable's index slowest.
std::uint64_t pointNumber(const GridPoints& points, std::size_t row);

/// "x=0, T=10".
std::string pointText(const GridPoints& points, std::uint64_t number);

/// "16 x 13".
std::string extentsText(const GridPoints& points);

/// Which rows give which point.
struct SortedPoints {
  std::vector<std::uint64_t> numbers;  // of the points that are there, ascending, each once
  std::vector<std::uint32_t> rows;     // sorted by point, those of one point by line
  std::vector<std::uint32_t> first;    // where in `rows` those of each point begin, and the end

  std::size_t count() const { return numbers.size(); }
  std::size_t rowsOf(std::size_t n) const { return first[n + 1] - first[n]; }
};

SortedPoints sortPoints(const GridPoints& points);

/// The first points with more than one row, and the number of all of them.
std::vector<DoublePoint> firstDoublePoints(const GridPoints& points, const SortedPoints& sorted, std::uint64_t& count);

/// The first points of the grid that no row gives.
std::vector<std::string> firstMissingPoints(const GridPoints& points, const SortedPoints& sorted, std::uint64_t size);

/// The function at a point: its value, or the mean of its rows' values, summed by line. Equal values are their mean.
double functionAt(const GridPoints& points, const SortedPoints& sorted, std::size_t n);

/// A column that the others leave no freedom: `from` is the variable that it follows from alone, or nothing where it
/// takes several. To be asked where the grid is not full.
struct DependentVariable {
  std::size_t variable;
  std::optional<std::size_t> from;
};
std::optional<DependentVariable> findDependentVariable(const GridPoints& points, const SortedPoints& sorted);

/// Whether rows with one index of `from` always have one index of `index`. A column whose values all differ says that
/// of any other: then both must rise or fall together, in four rows at least.
bool follows(const LargeList<std::uint32_t>& index, const LargeList<std::uint32_t>& from, std::size_t valuesOfFrom);

}  // namespace tavimor
