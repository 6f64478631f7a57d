#pragma once

#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "support/files.h"

namespace tavimor::test {

/// A page of docs/, of which tests read the examples and tables.
class Document {
 public:
  explicit Document(const std::string& name) : text_(readBytes(TAVIMOR_SOURCE_DIR "/docs/" + name)) {
    std::erase(text_, '\r');  // some systems check pages out with CR LF
  }

  /// The content of the block that begins with "```text name=NAME", every line ended by LF.
  std::string block(const std::string& name) const {
    const std::string head = "```text name=" + name + "\n";
    const std::size_t first = text_.find(head);
    const std::size_t last = first == std::string::npos ? first : text_.find("```", first + head.size());
    if (last == std::string::npos) throw std::runtime_error("no block " + name);
    return text_.substr(first + head.size(), last - first - head.size());
  }

  /// The cells of the table row that begins with these cells.
  std::vector<std::string> row(const std::vector<std::string>& firstCells) const {
    std::string beginning = "|";
    for (const std::string& cell : firstCells) beginning += " " + cell + " |";
    std::istringstream lines(text_);
    for (std::string line; std::getline(lines, line);)
      if (line.starts_with(beginning)) return cellsOf(line);
    throw std::runtime_error("no row " + beginning);
  }

 private:
  static std::vector<std::string> cellsOf(const std::string& line) {
    std::vector<std::string> cells;
    std::istringstream rest(line.substr(2));
    for (std::string cell; std::getline(rest, cell, '|');) {
      cells.push_back(cell.substr(0, cell.find_last_not_of(' ') + 1));
      rest.get();  // the blank before the next cell
    }
    return cells;
  }

  std::string text_;
};

}  // namespace tavimor::test
