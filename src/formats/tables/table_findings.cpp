#include "formats/tables/table_findings.h"

#include <algorithm>

#include "runtime/number_text.h"
#include "runtime/text.h"

namespace tavimor {

namespace {

std::string separatorText(char separator) {
  switch (separator) {
    case ',': return "a comma";
    case ';': return "a semicolon";
    case '\t': return "a tab";
    case kBlanks: return "blanks";
    default: return std::string("\"") + separator + '"';
  }
}

std::string quoted(std::string_view text) { return '"' + excerpt(text) + '"'; }

std::string joined(const std::vector<std::string>& items, const std::string& between) {
  std::string text;
  for (const std::string& item : items) text += (text.empty() ? "" : between) + item;
  return text;
}

std::string andMore(std::uint64_t named, std::uint64_t all) {
  return all > named ? " and " + std::to_string(all - named) + " more" : "";
}

std::vector<std::string> numberTexts(const std::vector<double>& numbers) {
  std::vector<std::string> texts;
  for (const double number : numbers) texts.push_back(numberText(number));
  return texts;
}

bool allEqual(const std::vector<double>& values) {
  return std::all_of(values.begin(), values.end(), [&](double value) { return value == values.front(); });
}

// "x=1 on lines 3 and 7 (5 and 6)"
std::string doublePointText(const DoublePoint& point) {
  std::vector<std::string> lines;
  for (const long line : point.lines) lines.push_back(std::to_string(line));
  const std::string more = andMore(point.lines.size(), point.lineCount);
  const std::string values =
      allEqual(point.values) ? "always " + numberText(point.values.front()) : joined(numberTexts(point.values), " / ");
  return point.point + " on lines " + (more.empty() ? listText(lines) : joined(lines, ", ") + more) + " (" + values +
         ')';
}

std::string doublePointsText(const std::vector<DoublePoint>& first, std::uint64_t count) {
  std::vector<std::string> texts;
  for (const DoublePoint& point : first) texts.push_back(doublePointText(point));
  return joined(texts, "; ") + andMore(first.size(), count);
}

long firstLine(const std::vector<DoublePoint>& points) {
  return points.empty() || points.front().lines.empty() ? 0 : points.front().lines.front();
}

std::string readingsText(const std::vector<std::string>& readings) {
  std::vector<std::string> numbered;
  for (std::size_t n = 0; n < readings.size(); ++n)
    numbered.push_back("(" + std::to_string(n + 1) + ") " + readings[n]);
  return joined(numbered, " or ");
}

}  // namespace

bool anyRefusal(const std::vector<TableFinding>& findings) {
  return std::any_of(findings.begin(), findings.end(), [](const TableFinding& finding) { return finding.isRefusal(); });
}

std::string labelText(const ColumnLabel& column) {
  const std::string number = "column " + std::to_string(column.number);
  return column.name.empty() ? number : number + " (" + quoted(column.name) + ')';
}

std::string listText(const std::vector<std::string>& items) {
  std::string text;
  for (std::size_t n = 0; n < items.size(); ++n) {
    if (n > 0) text += n + 1 == items.size() ? " and " : ", ";
    text += items[n];
  }
  return text;
}

std::string countText(std::uint64_t count, const std::string& one, const std::string& many) {
  return std::to_string(count) + ' ' + (count == 1 ? one : many);
}

std::string formatText(const TableFormat& format) {
  return separatorText(format.separator) + (format.separator == kBlanks ? " separate" : " separates") +
         " the columns, a " + (format.mark == DecimalMark::Point ? "point" : "comma") + " is the decimal mark";
}

TableFinding isNoUtf8() { return {FindingKind::NoUtf8, "the table is no UTF-8 or Latin-1 text: save it as UTF-8", 1}; }

TableFinding isNoTable() {
  return {FindingKind::NoTable, "no table: a table has two columns of numbers at least, one of them the function"};
}

TableFinding hasNoNumbers(const ColumnLabel& column) {
  return {FindingKind::NoTable, labelText(column) + " holds no numbers"};
}

TableFinding hasTooFewLines() { return {FindingKind::NoTable, "no table: it has fewer than two lines of numbers"}; }

TableFinding formatIsAmbiguous(const std::vector<std::string>& readings) {
  return {FindingKind::AmbiguousFormat, "the table can be read in two ways: " + readingsText(readings) +
                                            "; please say which with the separator and the decimal mark"};
}

TableFinding formIsAmbiguous(const std::vector<std::string>& readings) {
  return {FindingKind::AmbiguousForm, "the table can be read in two ways: " + readingsText(readings) +
                                          "; please say whether it is a list or a cross table"};
}

TableFinding variablesAreAmbiguous(const std::vector<std::string>& readings) {
  return {FindingKind::AmbiguousVariables, "the table can be read in two ways: " + readingsText(readings) +
                                               "; please name the columns of the variables and of the function"};
}

TableFinding commasMayBeThousands(const TableFormat& format) {
  return formatIsAmbiguous({formatText(format) + ", so that 1,234 is less than 2",
                            formatText({format.separator, DecimalMark::Point}) + ", so that 1,234 is 1234"});
}

TableFinding commasDoTwoThings() {
  return {FindingKind::AmbiguousFormat,
          "commas seem to separate the columns and to be decimal marks, too: no number can be told from its neighbour"};
}

TableFinding lineIsRagged(long line, std::size_t columns, std::size_t expected) {
  return {FindingKind::RaggedLine,
          "line " + std::to_string(line) + " has " + countText(columns, "column", "columns") + ", most lines have " +
              std::to_string(expected),
          line};
}

TableFinding moreLinesAreRagged(std::size_t more) {
  return {FindingKind::RaggedLine, countText(more, "more line has", "more lines have") + " another number of columns"};
}

TableFinding cellIsNoNumber(long line, const ColumnLabel& column, std::string_view cell, DecimalMark mark) {
  const std::string place = "line " + std::to_string(line) + ", " + labelText(column) + ": ";
  if (trimmed(cell).empty()) return {FindingKind::NoNumber, place + "nothing stands there", line};
  const DecimalMark other = mark == DecimalMark::Point ? DecimalMark::Comma : DecimalMark::Point;
  std::string text = quoted(cell) + " is no number";
  if (cellNumber(cell, other))
    text += mark == DecimalMark::Point ? ": the decimal mark of the table is a point"
                                       : ": the decimal mark of the table is a comma";
  return {FindingKind::NoNumber, place + text, line};
}

TableFinding moreCellsAreNoNumbers(std::size_t more) {
  return {FindingKind::NoNumber, countText(more, "more cell holds", "more cells hold") + " no number"};
}

TableFinding columnIsUnknown(const std::string& asked, const std::vector<ColumnLabel>& columns) {
  std::vector<std::string> labels;
  for (const ColumnLabel& column : columns)
    labels.push_back(std::to_string(column.number) + (column.name.empty() ? "" : " (" + quoted(column.name) + ')'));
  return {FindingKind::UnknownColumn, "no column is called " + quoted(asked) + ": the columns are " + listText(labels)};
}

TableFinding columnIsTwiceAsked(const ColumnLabel& column) {
  return {FindingKind::UnknownColumn, labelText(column) + " is named twice"};
}

TableFinding columnsAreTooFew() {
  return {FindingKind::UnknownColumn, "a variable and the function are needed: name two columns at least"};
}

TableFinding variablesAreTooMany(std::size_t count) {
  return {FindingKind::TooManyVariables,
          std::to_string(count) +
              " columns can be variables, more than four: please name those of the variables and of the function"};
}

TableFinding columnIsConstant(const ColumnLabel& column, double value) {
  return {FindingKind::ConstantColumn,
          labelText(column) + " is always " + numberText(value) + ": a variable needs two values at least"};
}

TableFinding columnFollows(const ColumnLabel& column, const ColumnLabel& from) {
  return {FindingKind::DependentColumn, labelText(column) + " follows from " + labelText(from) +
                                            ": where that is the same, so is this, and they cannot both be variables"};
}

TableFinding columnFollowsFromOthers(const ColumnLabel& column) {
  return {FindingKind::DependentColumn,
          labelText(column) + " follows from the other variables: no two points differ in it alone"};
}

TableFinding pointsAreDouble(const std::vector<DoublePoint>& first, std::uint64_t count) {
  return {
      FindingKind::DoublePoints,
      countText(count, "point stands", "points stand") + " on more than one line: " + doublePointsText(first, count),
      firstLine(first)};
}

TableFinding meansAreTaken(const std::vector<DoublePoint>& first, std::uint64_t count) {
  return {FindingKind::MeansTaken,
          "the mean is taken at " + countText(count, "point", "points") + ": " + doublePointsText(first, count),
          firstLine(first)};
}

TableFinding pointsAreMissing(const std::vector<std::string>& first, std::uint64_t missing, std::uint64_t all,
                              const std::string& wayOut) {
  return {FindingKind::MissingPoints, "the grid is not full: " + std::to_string(missing) + " of its " +
                                          std::to_string(all) + " points " + (missing == 1 ? "is" : "are") +
                                          " missing: " + joined(first, "; ") + andMore(first.size(), missing) + "; " +
                                          wayOut};
}

TableFinding pointsAreScattered(std::uint64_t points, const std::string& extents) {
  return {FindingKind::NoFullGrid, "the points are no grid: of the " + extents +
                                       " points that their values make only " + std::to_string(points) +
                                       (points == 1 ? " is" : " are") + " there"};
}

std::string wayOutText(const std::vector<std::string>& values, std::uint64_t lostPoints, std::uint64_t points) {
  return "without " + listText(values) + " it is full and loses " + std::to_string(lostPoints) + " of the " +
         countText(points, "point", "points");
}

std::string noWayOutText() { return "leaving out values leaves no grid of two values for each variable"; }

TableFinding gridIsShrunk(const std::vector<std::string>& values, std::uint64_t lostPoints, std::uint64_t points) {
  return {FindingKind::GridShrunk, listText(values) + (values.size() == 1 ? " is" : " are") + " left out, and with " +
                                       (values.size() == 1 ? "it " : "them ") + std::to_string(lostPoints) +
                                       " of the " + countText(points, "point", "points")};
}

TableFinding noFullGridStays() { return {FindingKind::NoFullGrid, "no full grid stays: " + noWayOutText()}; }

TableFinding gridIsTooLarge() {
  return {FindingKind::TooLarge, "the grid has more points than a problem can hold, 2147483647"};
}

TableFinding degreesAreMiscounted(std::size_t degrees, std::size_t variables) {
  return {FindingKind::BadDegree, countText(degrees, "degree is", "degrees are") + " given for " +
                                      countText(variables, "variable", "variables")};
}

TableFinding degreeIsTooHigh(Long degree, const std::string& variable, std::size_t values) {
  return {FindingKind::BadDegree, "the degree of " + variable + " must be 0 or more and below its " +
                                      countText(values, "value", "values") + ", not " + numberText(degree)};
}

TableFinding centresAreMiscounted(std::size_t centres, std::size_t variables) {
  return {FindingKind::BadCentre, countText(centres, "centre is", "centres are") + " given for " +
                                      countText(variables, "variable", "variables")};
}

TableFinding centreIsNoNumber(const std::string& text) {
  return {FindingKind::BadCentre, "the centre " + quoted(text) + " is no number and not *"};
}

TableFinding limitsHaveNoMiddle(const std::string& variable) {
  return {FindingKind::BadCentre, "the limits of " + variable + " have no middle to expand about"};
}

TableFinding formatIsTaken(const TableFormat& format, bool crossTable) {
  return {FindingKind::FormatTaken,
          std::string(crossTable ? "a cross table: " : "a list of points: ") + formatText(format)};
}

TableFinding headingIsTaken(long headingLine, long unitsLine, const std::vector<std::string>& units) {
  std::string text = "line " + std::to_string(headingLine) + " is the heading";
  std::vector<std::string> excerpts;
  for (const std::string& unit : units) excerpts.push_back(excerpt(unit));
  if (unitsLine > 0) text += ", line " + std::to_string(unitsLine) + " the units (" + joined(excerpts, ", ") + ')';
  return {FindingKind::HeadingTaken, text, headingLine};
}

TableFinding rolesAreTaken(const std::vector<ColumnLabel>& variables, const ColumnLabel& function) {
  std::vector<std::string> labels;
  for (const ColumnLabel& variable : variables) labels.push_back(labelText(variable));
  return {FindingKind::RolesTaken, listText(labels) +
                                       (labels.size() == 1 ? " is the variable, " : " are the variables, ") +
                                       labelText(function) + " the function"};
}

TableFinding columnIsLeftOut(const ColumnLabel& column, const std::string& why) {
  return {FindingKind::ColumnLeftOut, labelText(column) + " is left out: " + why};
}

TableFinding valuesAreMerged(const std::string& variable, const std::vector<double>& merged, double kept) {
  return {FindingKind::ValuesMerged, "values of " + variable + " that are equal within the tolerance are taken for " +
                                         numberText(kept) + ": " + joined(numberTexts(merged), ", ")};
}

TableFinding moreValuesAreMerged(const std::string& variable, std::size_t more) {
  return {FindingKind::ValuesMerged, countText(more, "more value", "more values") + " of " + variable +
                                         (more == 1 ? " stands" : " stand") + " for others within the tolerance, too"};
}

TableFinding nameIsChanged(const ColumnLabel& column, const std::string& variable) {
  return {FindingKind::NameChanged, labelText(column) + " becomes the variable " + variable};
}

TableFinding variableIsTaken(const std::string& variable, std::size_t values, double lower, double upper, bool spaced) {
  return {FindingKind::VariableTaken, variable + ": " + countText(values, "value", "values") + " from " +
                                          numberText(lower) + " to " + numberText(upper) +
                                          (spaced ? ", equally spaced" : "")};
}

}  // namespace tavimor
