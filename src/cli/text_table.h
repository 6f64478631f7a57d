#pragma once

#include <string>
#include <vector>

#include "runtime/line_sink.h"

namespace tavimor {

/// Rows of cells, each column as wide as its widest cell: the first column to the left, the others to the right.
class TextTable {
 public:
  explicit TextTable(std::vector<std::string> head) : rows_{std::move(head)} {}

  void add(std::vector<std::string> row) { rows_.push_back(std::move(row)); }
  void print(const LineSink& line) const;

 private:
  std::vector<std::vector<std::string>> rows_;
};

}  // namespace tavimor
