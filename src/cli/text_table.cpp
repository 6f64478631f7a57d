#include "cli/text_table.h"

#include <algorithm>

#include "runtime/text.h"

namespace tavimor {

void TextTable::print(const LineSink& line) const {
  std::vector<std::size_t> widths;
  for (const auto& row : rows_)
    for (std::size_t column = 0; column < row.size(); ++column) {
      if (column == widths.size()) widths.push_back(0);
      widths[column] = std::max(widths[column], characterCount(row[column]));
    }
  for (const auto& row : rows_) {
    std::string text;
    for (std::size_t column = 0; column < row.size(); ++column) {
      const std::string blanks(widths[column] - characterCount(row[column]), ' ');
      text += column == 0 ? row[column] + blanks : "  " + blanks + row[column];
    }
    text.erase(text.find_last_not_of(' ') + 1);
    line(text);
  }
}

}  // namespace tavimor
