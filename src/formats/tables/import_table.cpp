#include "formats/tables/import_table.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "formats/tables/column_roles.h"
#include "formats/tables/cross_table.h"
#include "formats/tables/grid_doctor.h"
#include "formats/tables/problem_from_grid.h"

namespace tavimor {

namespace {

constexpr std::size_t kFewestColumnsOfACrossTable = 6;  // a list of so many would have more than four variables

class TableImport {
 public:
  TableImport(std::string_view text, const ImportOptions& options) : text_(text), options_(options) {}

  ImportOutcome run() {
    add(recogniseTable(text_, options_, recognised_));
    outcome_.format = recognised_.format;
    outcome_.hasHeading = recognised_.headingLine > 0;
    if (!isRefused()) readTable();
    if (!isRefused()) findColumns();
    if (!isRefused()) makeProblem();
    return std::move(outcome_);
  }

 private:
  void add(std::vector<TableFinding> findings) {
    for (TableFinding& finding : findings) outcome_.findings.push_back(std::move(finding));
  }
  void add(TableFinding finding) { outcome_.findings.push_back(std::move(finding)); }
  bool isRefused() const { return anyRefusal(outcome_.findings); }

  void readTable() {
    table_ = readColumns(text_, recognised_, options_.progress);
    add(std::move(table_.ragged));
    if (isRefused()) return;
    if (table_.commasMayGroupThousands && !options_.mark) return add(commasMayBeThousands(recognised_.format));
    const bool isCross = recognised_.cross == CrossTable::Certain || isTakenForCrossTable();
    if (isRefused()) return;
    outcome_.form = isCross ? TableForm::Cross : TableForm::List;
    tellWhatIsTaken();
    if (isCross) takeCrossTable();
    if (table_.rows() < 2) add(hasTooFewLines());
  }

  // A table of numbers alone can be a cross table whose corner is a number, too.
  bool isTakenForCrossTable() {
    if (recognised_.cross != CrossTable::Possible) return false;
    if (options_.form == TableForm::Cross) return takenForAcross();
    if (isGridOfSeveral()) return false;
    if (recognised_.columns >= kFewestColumnsOfACrossTable) return takenForAcross();
    add(formIsAmbiguous({"a list of points, each line a point",
                         "a cross table, its first row and its first column the "
                         "values of two variables"}));
    return false;
  }

  bool takenForAcross() {
    takeFirstRowForAcross(recognised_, table_);
    return true;
  }

  // Whether the columns are a list on a grid of two variables or more.
  bool isGridOfSeveral() const { return findRoles(recognised_, table_, options_).variables.size() > 1; }

  void takeCrossTable() {
    CrossPoints points = pointsOfCrossTable(recognised_, std::move(table_));
    recognised_ = std::move(points.recognised);
    table_ = std::move(points.table);
  }

  void tellWhatIsTaken() {
    add(formatIsTaken(recognised_.format, outcome_.form == TableForm::Cross));
    if (recognised_.headingLine > 0)
      add(headingIsTaken(recognised_.headingLine, recognised_.unitsLine, recognised_.units));
  }

  void findColumns() {
    if (outcome_.form == TableForm::Cross) {
      for (std::size_t column = 0; column < 2; ++column) {
        roles_.variables.push_back(column);
        const ColumnValues& values =
            roles_.values.emplace_back(findValues(table_.columns[column].numbers, options_.tolerance));
        if (values.values.size() == 1) add(columnIsConstant(columnLabel(recognised_, column), values.values.front()));
      }
      roles_.function = 2;
    } else {
      roles_ = findRoles(recognised_, table_, options_);
      tellRoles();
    }
    if (isRefused()) return;
    refuseCellsWithoutNumbers();
  }

  void tellRoles() {
    for (std::size_t column = 0; column < table_.columns.size(); ++column)
      outcome_.columns.push_back(columnLabel(recognised_, column));
    outcome_.variables = roles_.variables;
    outcome_.function = roles_.function;
    if (!roles_.variables.empty()) {
      std::vector<ColumnLabel> variables;
      for (const std::size_t column : roles_.variables) variables.push_back(columnLabel(recognised_, column));
      add(rolesAreTaken(variables, columnLabel(recognised_, roles_.function)));
    }
    add(std::move(roles_.findings));
    const bool isNoGrid = anyRefusal(outcome_.findings) || roles_.variables.size() < 2;
    if (isNoGrid && recognised_.commasMayDoTwoThings) add(commasDoTwoThings());
  }

  // An empty cell of the function is a point that misses; every other cell must be a number.
  void refuseCellsWithoutNumbers() {
    std::vector<BadCell> cells = table_.columns[roles_.function].bad;
    std::size_t count = table_.columns[roles_.function].badCount;
    for (const std::size_t variable : roles_.variables) {
      const TableColumn& column = table_.columns[variable];
      cells.insert(cells.end(), column.bad.begin(), column.bad.end());
      cells.insert(cells.end(), column.empty.begin(), column.empty.end());
      count += column.badCount + column.emptyCount;
    }
    std::sort(cells.begin(), cells.end(), [](const BadCell& a, const BadCell& b) {
      return a.line != b.line ? a.line < b.line : a.column < b.column;
    });
    cells.resize(std::min(cells.size(), kMostNamed));
    for (const BadCell& cell : cells)
      add(cellIsNoNumber(cell.line, labelOfCell(cell), cell.text, recognised_.format.mark));
    if (count > cells.size()) add(moreCellsAreNoNumbers(count - cells.size()));
  }

  // The names of a cross table's columns are those of its list of points, not of the columns that one sees.
  ColumnLabel labelOfCell(const BadCell& cell) const {
    if (outcome_.form == TableForm::Cross) return {static_cast<int>(cell.column) + 1, ""};
    return columnLabel(recognised_, cell.column);
  }

  void makeProblem() {
    const std::vector<std::string> names = nameVariables();
    GridPoints points = takePoints(names);
    GridDiagnosis diagnosis = diagnoseGrid(points, options_.duplicates, options_.gaps);
    add(std::move(diagnosis.findings));
    if (!diagnosis.grid) return;
    Problem problem = problemFromGrid(std::move(*diagnosis.grid), names);
    add(setDegreesAndCentres(problem, options_.degrees, options_.centres));
    if (isRefused()) return;
    outcome_.problem = std::move(problem);
    tellVariables();
  }

  std::vector<std::string> nameVariables() {
    std::vector<std::string> columns;
    for (const std::size_t column : roles_.variables) columns.push_back(columnLabel(recognised_, column).name);
    const std::vector<std::string> names = variableNames(columns);
    for (std::size_t k = 0; k < names.size(); ++k)
      if (names[k] != columns[k] && outcome_.form == TableForm::List)
        add(nameIsChanged(columnLabel(recognised_, roles_.variables[k]), names[k]));
    return names;
  }

  GridPoints takePoints(const std::vector<std::string>& names) {
    GridPoints points;
    for (std::size_t k = 0; k < names.size(); ++k) {
      tellMerged(names[k], roles_.values[k].merged);
      points.variables.push_back({names[k], columnLabel(recognised_, roles_.variables[k]),
                                  std::move(roles_.values[k].values), std::move(roles_.values[k].index)});
    }
    TableColumn& function = table_.columns[roles_.function];
    points.function = std::move(function.numbers);
    points.lines = std::move(table_.lines);
    const bool hasGaps = function.emptyCount > 0;
    table_ = {};
    if (hasGaps) dropRowsWithoutFunction(points);
    return points;
  }

  static void dropRowsWithoutFunction(GridPoints& points) {
    std::size_t kept = 0;
    for (std::size_t row = 0; row < points.rows(); ++row) {
      if (std::isnan(points.function[row])) continue;
      points.function[kept] = points.function[row];
      points.lines[kept] = points.lines[row];
      for (auto& variable : points.variables) variable.index[kept] = variable.index[row];
      ++kept;
    }
    points.function.resize(kept);
    points.lines.resize(kept);
    for (auto& variable : points.variables) variable.index.resize(kept);
  }

  void tellMerged(const std::string& variable, const std::vector<MergedValues>& merged) {
    for (std::size_t n = 0; n < std::min(merged.size(), kMostNamed); ++n)
      add(valuesAreMerged(variable, merged[n].values, merged[n].kept));
    if (merged.size() > kMostNamed) add(moreValuesAreMerged(variable, merged.size() - kMostNamed));
  }

  void tellVariables() {
    const Problem& problem = *outcome_.problem;
    for (Long k = 0; k <= problem.LastVar; ++k)
      add(variableIsTaken(problem.VarName[k], static_cast<std::size_t>(problem.LastPoint[k]) + 1, problem.LowerLimit[k],
                          problem.UpperLimit[k], problem.EquallySpaced[k]));
  }

  std::string_view text_;
  const ImportOptions& options_;
  RecognisedTable recognised_;
  TableColumns table_;
  ColumnRoles roles_;
  ImportOutcome outcome_;
};

}  // namespace

ImportOutcome importTable(std::string_view text, const ImportOptions& options) {
  return TableImport(text, options).run();
}

}  // namespace tavimor
