#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

#include "formats/tables/large_list.h"
#include "formats/tables/recognise_table.h"
#include "formats/tables/table_findings.h"

namespace tavimor {

/// A cell that holds no number.
struct BadCell {
  std::size_t column;  // from 0 on
  long line;
  std::string text;
};

struct TableColumn {
  LargeList<double> numbers;   // one for each row; NaN where the cell holds none
  std::vector<BadCell> bad;    // the first kMostNamed cells that hold something else
  std::vector<BadCell> empty;  // the first kMostNamed that hold nothing
  std::size_t badCount = 0;
  std::size_t emptyCount = 0;
};

/// The numbers of a table, below its head.
struct TableColumns {
  std::vector<TableColumn> columns;
  LargeList<std::uint32_t> lines;        // of each row, counted from 1
  std::vector<TableFinding> ragged;      // lines with another number of columns: they are no rows here
  bool commasMayGroupThousands = false;  // every decimal comma stands before three digits, as in 1,234

  std::size_t rows() const { return lines.size(); }
};

/// Reads the numbers of a table that was recognised. Time is about that of reading as many numbers from a problem
/// file; memory is 8 bytes a cell and 4 a row.
TableColumns readColumns(std::string_view text, const RecognisedTable& recognised,
                         const std::function<void(double)>& progress);

}  // namespace tavimor
