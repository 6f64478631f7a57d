#pragma once

#include <string_view>
#include <vector>

#include "formats/tables/import_options.h"
#include "formats/tables/table_findings.h"

namespace tavimor {

/// Whether the first row can be the values of one variable of a cross table.
enum class CrossTable { No, Possible, Certain };

/// What the first records of a table say of it.
struct RecognisedTable {
  TableFormat format;
  std::size_t columns = 0;  // of most records
  long headingLine = 0;     // 0 where there is none
  long unitsLine = 0;
  std::vector<std::string> names;  // of the heading, as they stand there; empty where there is none
  std::vector<std::string> units;
  CrossTable cross = CrossTable::No;
  std::vector<double> across;         // a certain cross table's first row
  std::string corner;                 // and what stands before that
  std::size_t recordsOfHead = 0;      // heading, units, or that first row: records before the numbers
  bool commasMayDoTwoThings = false;  // each pair of columns may be one number with a decimal comma
};

/// Finds the separator, the decimal mark, the heading and the form from the first records. Returns refusals, and where
/// there are none a table to read.
///
/// Every separator and decimal mark that is not told is tried. That reading is taken in which the most records have
/// one number of columns and the most of their cells are numbers; where two readings are equally good and give
/// different numbers, both are told and none is taken.
std::vector<TableFinding> recogniseTable(std::string_view text, const ImportOptions& options,
                                         RecognisedTable& recognised);

}  // namespace tavimor
