#include "formats/tables/cross_table.h"

#include <cmath>
#include <string>
#include <utility>

#include "runtime/text.h"

namespace tavimor {

namespace {

constexpr std::size_t kColumns = 3;

// "p\T" and "p/T" name both variables, any other text the first column's.
std::vector<std::string> namesFromCorner(const std::string& corner) {
  const std::size_t stroke = corner.find_first_of("\\/");
  if (stroke == std::string::npos) return {corner, "", ""};
  return {std::string(trimmed(corner.substr(0, stroke))), std::string(trimmed(corner.substr(stroke + 1))), ""};
}

void moveBadCells(TableColumn& from, TableColumn& to) {
  to.badCount += from.badCount;
  for (BadCell& cell : from.bad)
    if (to.bad.size() < kMostNamed) to.bad.push_back(std::move(cell));
}

}  // namespace

CrossPoints pointsOfCrossTable(const RecognisedTable& recognised, TableColumns table) {
  CrossPoints points{recognised, {}};
  points.recognised.names = namesFromCorner(recognised.corner);
  points.table.ragged = std::move(table.ragged);
  points.table.commasMayGroupThousands = table.commasMayGroupThousands;
  points.table.columns.resize(kColumns);
  TableColumn& down = points.table.columns[0];
  TableColumn& across = points.table.columns[1];
  TableColumn& function = points.table.columns[2];
  moveBadCells(table.columns.front(), down);
  std::swap(down.empty, table.columns.front().empty);
  down.emptyCount = table.columns.front().emptyCount;
  for (std::size_t row = 0; row < table.rows(); ++row)
    for (std::size_t c = 1; c < table.columns.size(); ++c) {
      if (std::isnan(table.columns[c].numbers[row])) continue;
      down.numbers.push_back(table.columns.front().numbers[row]);
      across.numbers.push_back(recognised.across[c - 1]);
      function.numbers.push_back(table.columns[c].numbers[row]);
      points.table.lines.push_back(table.lines[row]);
    }
  for (std::size_t c = 1; c < table.columns.size(); ++c) moveBadCells(table.columns[c], function);
  return points;
}

void takeFirstRowForAcross(RecognisedTable& recognised, TableColumns& table) {
  recognised.across.clear();
  for (std::size_t c = 1; c < table.columns.size(); ++c) recognised.across.push_back(table.columns[c].numbers.front());
  for (TableColumn& column : table.columns) column.numbers.erase(column.numbers.begin());
  table.lines.erase(table.lines.begin());
}

}  // namespace tavimor
