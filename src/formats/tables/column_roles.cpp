#include "formats/tables/column_roles.h"

#include <algorithm>
#include <optional>

#include "formats/tables/grid_points.h"
#include "model/table4.h"
#include "runtime/numeral.h"

namespace tavimor {

namespace {

constexpr std::size_t kMostCandidates = 12;  // columns that are tried in all combinations
constexpr double kLeastFill = 0.5;           // a grid of which less is there is no sign of a grid

using Columns = std::vector<std::size_t>;

bool holdsNumbers(const TableColumn& column) {
  return 2 * (column.badCount + column.emptyCount) < column.numbers.size();
}

class RoleFinder {
 public:
  RoleFinder(const RecognisedTable& recognised, const TableColumns& table, const ImportOptions& options)
      : recognised_(recognised), table_(table), options_(options), values_(table.columns.size()) {}

  ColumnRoles find() {
    if (options_.columns.empty())
      findUntold();
    else
      takeTold();
    for (const std::size_t variable : roles_.variables) roles_.values.push_back(std::move(valuesOf(variable)));
    return std::move(roles_);
  }

 private:
  ColumnLabel label(std::size_t column) const { return columnLabel(recognised_, column); }

  ColumnValues& valuesOf(std::size_t column) {
    auto& values = values_[column];
    if (!values) values = findValues(table_.columns[column].numbers, options_.tolerance);
    return *values;
  }

  void add(TableFinding finding) { roles_.findings.push_back(std::move(finding)); }

  std::optional<std::size_t> columnCalled(const std::string& text) const {
    const auto& names = recognised_.names;
    const auto name = std::find(names.begin(), names.end(), text);
    if (name != names.end()) return static_cast<std::size_t>(name - names.begin());
    const Numeral number = scanNumeral(text.data(), text.data() + text.size());
    if (text.empty() || number.end != text.data() + text.size()) return std::nullopt;
    for (std::size_t column = 0; column < table_.columns.size(); ++column)
      if (number.value == static_cast<double>(column + 1)) return column;
    return std::nullopt;
  }

  void takeTold() {
    if (options_.columns.size() < 2) return add(columnsAreTooFew());
    if (options_.columns.size() > kMaxVariables + 1) return add(variablesAreTooMany(options_.columns.size() - 1));
    Columns told;
    for (const std::string& text : options_.columns) {
      const auto column = columnCalled(text);
      if (!column) return add(columnIsUnknown(text, allLabels()));
      if (std::find(told.begin(), told.end(), *column) != told.end()) return add(columnIsTwiceAsked(label(*column)));
      if (!holdsNumbers(table_.columns[*column])) return add(hasNoNumbers(label(*column)));
      told.push_back(*column);
    }
    roles_.function = told.back();
    told.pop_back();
    for (const std::size_t column : told)
      if (valuesOf(column).values.size() == 1)
        return add(columnIsConstant(label(column), valuesOf(column).values.front()));
    roles_.variables = told;
  }

  std::vector<ColumnLabel> allLabels() const {
    std::vector<ColumnLabel> labels;
    for (std::size_t column = 0; column < table_.columns.size(); ++column) labels.push_back(label(column));
    return labels;
  }

  void findUntold() {
    Columns candidates;
    for (std::size_t column = 0; column < table_.columns.size(); ++column)
      if (holdsNumbers(table_.columns[column])) candidates.push_back(column);
    if (candidates.size() < 2) return add(isNoTable());
    roles_.function = candidates.back();
    candidates.pop_back();
    Columns constant;
    for (const std::size_t column : candidates)
      if (valuesOf(column).values.size() == 1) constant.push_back(column);
    std::erase_if(candidates, [&](std::size_t column) { return valuesOf(column).values.size() == 1; });
    if (candidates.empty())
      return add(columnIsConstant(label(constant.front()), valuesOf(constant.front()).values.front()));
    chooseVariables(candidates);
    if (!roles_.variables.empty()) tellWhatIsLeftOut();
  }

  void chooseVariables(const Columns& candidates) {
    if (candidates.size() == 1) {
      roles_.variables = candidates;
      return;
    }
    roles_.variables = makeAsManyPointsAsRows(candidates) ? candidates : fullestGrid(candidates);
    if (!roles_.variables.empty()) return;
    const std::size_t first = candidates.front();
    const bool eachOnce = valuesOf(first).values.size() == table_.rows();
    if (eachOnce && isInOrder(valuesOf(first).index)) {
      roles_.variables = {first};
    } else if (candidates.size() > kMaxVariables) {
      add(variablesAreTooMany(candidates.size()));
    } else if (eachOnce) {
      add(variablesAreAmbiguous({readingText({first}), readingText(candidates)}));
    } else {
      roles_.variables = candidates;
    }
  }

  // Then nothing speaks for fewer columns.
  bool makeAsManyPointsAsRows(const Columns& columns) {
    return columns.size() <= kMaxVariables && gridSizeOf(columns) == static_cast<double>(table_.rows());
  }

  double gridSizeOf(const Columns& columns) {
    double size = 1.0;
    for (const std::size_t column : columns) size *= static_cast<double>(valuesOf(column).values.size());
    return size;
  }

  static bool isInOrder(const LargeList<std::uint32_t>& index) {
    return std::is_sorted(index.begin(), index.end()) || std::is_sorted(index.rbegin(), index.rend());
  }

  std::string readingText(const Columns& variables) {
    std::vector<std::string> labels;
    for (const std::size_t column : variables) labels.push_back(labelText(label(column)));
    return labelText(label(roles_.function)) + " is a function of " + listText(labels);
  }

  // The combination of two to four columns whose values make the fullest grid; nothing where all are mostly empty.
  Columns fullestGrid(Columns candidates) {
    candidates.resize(std::min(candidates.size(), kMostCandidates));
    Columns best;
    double bestFill = kLeastFill;
    for (std::uint32_t set = 1; set < 1U << candidates.size(); ++set) {
      Columns columns;
      for (std::size_t n = 0; n < candidates.size(); ++n)
        if (((set >> n) & 1) != 0) columns.push_back(candidates[n]);
      if (columns.size() < 2 || columns.size() > kMaxVariables) continue;
      const double fill = fillOf(columns);
      if (fill < bestFill || (fill == bestFill && (best.empty() || columns.size() < best.size()))) continue;
      if (fill == bestFill && columns.size() == best.size() && best < columns) continue;
      best = columns;
      bestFill = fill;
    }
    return best;
  }

  // The part of the grid that is there, or, where that is less, the part of the rows that are different points.
  double fillOf(const Columns& columns) {
    const double size = gridSizeOf(columns);
    const auto rows = static_cast<double>(table_.rows());
    if (size * kLeastFill > rows) return 0.0;
    const auto different = static_cast<double>(differentPoints(columns, static_cast<std::size_t>(size)));
    return std::min(different / size, different / rows);
  }

  std::size_t differentPoints(const Columns& columns, std::size_t size) {
    std::vector<bool> isThere(size);
    std::size_t different = 0;
    for (std::size_t row = 0; row < table_.rows(); ++row) {
      std::size_t number = 0;
      bool isWhole = true;
      for (const std::size_t column : columns) {
        const std::uint32_t index = valuesOf(column).index[row];
        isWhole = isWhole && index != kNoIndex;
        number = number * valuesOf(column).values.size() + (isWhole ? index : 0);
      }
      if (!isWhole || isThere[number]) continue;
      isThere[number] = true;
      ++different;
    }
    return different;
  }

  void tellWhatIsLeftOut() {
    for (std::size_t column = 0; column < table_.columns.size(); ++column) {
      const bool isTaken = column == roles_.function || std::find(roles_.variables.begin(), roles_.variables.end(),
                                                                  column) != roles_.variables.end();
      if (!isTaken) add(columnIsLeftOut(label(column), reasonToLeaveOut(column)));
    }
  }

  std::string reasonToLeaveOut(std::size_t column) {
    if (!holdsNumbers(table_.columns[column])) return "it holds no numbers";
    if (valuesOf(column).values.size() == 1) return "it is always the same";
    for (const std::size_t variable : roles_.variables)
      if (follows(valuesOf(column).index, valuesOf(variable).index, valuesOf(variable).values.size()))
        return "it follows from " + labelText(label(variable));
    return "the others make a grid without it";
  }

  const RecognisedTable& recognised_;
  const TableColumns& table_;
  const ImportOptions& options_;
  std::vector<std::optional<ColumnValues>> values_;
  ColumnRoles roles_;
};

}  // namespace

ColumnLabel columnLabel(const RecognisedTable& recognised, std::size_t index) {
  return {static_cast<int>(index) + 1, index < recognised.names.size() ? recognised.names[index] : std::string()};
}

ColumnRoles findRoles(const RecognisedTable& recognised, const TableColumns& table, const ImportOptions& options) {
  return RoleFinder(recognised, table, options).find();
}

}  // namespace tavimor
