#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "formats/tables/table_format.h"
#include "runtime/long.h"

namespace tavimor {

/// What was found in a table. A refusal leaves no problem; a note says what was taken, left out or done.
enum class FindingKind {
  // Refusals
  NoUtf8,
  NoTable,
  AmbiguousFormat,
  AmbiguousForm,
  AmbiguousVariables,
  RaggedLine,
  NoNumber,
  UnknownColumn,
  TooManyVariables,
  ConstantColumn,
  DependentColumn,
  DoublePoints,
  MissingPoints,
  NoFullGrid,
  TooLarge,
  BadDegree,
  BadCentre,
  // Notes
  FormatTaken,
  HeadingTaken,
  RolesTaken,
  ColumnLeftOut,
  ValuesMerged,
  NameChanged,
  MeansTaken,
  GridShrunk,
  VariableTaken,
};

/// A finding with its sentence, the same for the command line and the window.
struct TableFinding {
  FindingKind kind;
  std::string text;
  long line = 0;  // where it stands, counted from 1; 0 for what has no line

  bool isRefusal() const { return kind < FindingKind::FormatTaken; }
};

bool anyRefusal(const std::vector<TableFinding>& findings);

/// A column as messages name it: its number, counted from 1, and its name, which may be empty.
struct ColumnLabel {
  int number;
  std::string name;
};

/// The most points, cells or lines of one kind that are named one by one.
constexpr std::size_t kMostNamed = 20;

/// `column 2 ("T")`, or `column 2`.
std::string labelText(const ColumnLabel& column);

/// "a, b and c".
std::string listText(const std::vector<std::string>& items);

/// "1 line", "3 lines".
std::string countText(std::uint64_t count, const std::string& one, const std::string& many);

// One function for each sentence. Points are texts like "x=0, T=10", readings like those of formatText.

std::string formatText(const TableFormat& format);

TableFinding isNoUtf8();
TableFinding isNoTable();
TableFinding hasNoNumbers(const ColumnLabel& column);
TableFinding hasTooFewLines();
TableFinding formatIsAmbiguous(const std::vector<std::string>& readings);
TableFinding formIsAmbiguous(const std::vector<std::string>& readings);
TableFinding variablesAreAmbiguous(const std::vector<std::string>& readings);
TableFinding commasMayBeThousands(const TableFormat& format);
TableFinding commasDoTwoThings();
TableFinding lineIsRagged(long line, std::size_t columns, std::size_t expected);
TableFinding moreLinesAreRagged(std::size_t more);
TableFinding cellIsNoNumber(long line, const ColumnLabel& column, std::string_view cell, DecimalMark mark);
TableFinding moreCellsAreNoNumbers(std::size_t more);
TableFinding columnIsUnknown(const std::string& asked, const std::vector<ColumnLabel>& columns);
TableFinding columnIsTwiceAsked(const ColumnLabel& column);
TableFinding columnsAreTooFew();
TableFinding variablesAreTooMany(std::size_t count);
TableFinding columnIsConstant(const ColumnLabel& column, double value);
TableFinding columnFollows(const ColumnLabel& column, const ColumnLabel& from);
TableFinding columnFollowsFromOthers(const ColumnLabel& column);

/// A point that more than one line gives.
struct DoublePoint {
  std::string point;
  std::vector<long> lines;      // kMostNamed at most
  std::vector<double> values;   // of the function there, in the order of the lines
  std::uint64_t lineCount = 0;  // all of them
};

TableFinding pointsAreDouble(const std::vector<DoublePoint>& first, std::uint64_t count);
TableFinding meansAreTaken(const std::vector<DoublePoint>& first, std::uint64_t count);

/// Values of one variable: "T=10".
TableFinding pointsAreMissing(const std::vector<std::string>& first, std::uint64_t missing, std::uint64_t all,
                              const std::string& wayOut);
TableFinding pointsAreScattered(std::uint64_t points, const std::string& extents);
std::string wayOutText(const std::vector<std::string>& values, std::uint64_t lostPoints, std::uint64_t points);
std::string noWayOutText();
TableFinding gridIsShrunk(const std::vector<std::string>& values, std::uint64_t lostPoints, std::uint64_t points);
TableFinding noFullGridStays();
TableFinding gridIsTooLarge();

TableFinding degreesAreMiscounted(std::size_t degrees, std::size_t variables);
TableFinding degreeIsTooHigh(Long degree, const std::string& variable, std::size_t values);
TableFinding centresAreMiscounted(std::size_t centres, std::size_t variables);
TableFinding centreIsNoNumber(const std::string& text);
TableFinding limitsHaveNoMiddle(const std::string& variable);

TableFinding formatIsTaken(const TableFormat& format, bool crossTable);
TableFinding headingIsTaken(long headingLine, long unitsLine, const std::vector<std::string>& units);
TableFinding rolesAreTaken(const std::vector<ColumnLabel>& variables, const ColumnLabel& function);
TableFinding columnIsLeftOut(const ColumnLabel& column, const std::string& why);
TableFinding valuesAreMerged(const std::string& variable, const std::vector<double>& merged, double kept);
TableFinding moreValuesAreMerged(const std::string& variable, std::size_t more);
TableFinding nameIsChanged(const ColumnLabel& column, const std::string& variable);
TableFinding variableIsTaken(const std::string& variable, std::size_t values, double lower, double upper, bool spaced);

}  // namespace tavimor
