#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "formats/tables/import_options.h"
#include "formats/tables/table_findings.h"
#include "model/problem.h"

namespace tavimor {

/// A problem made of a table, with what was taken, or the reasons why there is none.
struct ImportOutcome {
  std::optional<Problem> problem;
  std::vector<TableFinding> findings;  // refusals, each with its place, or notes
  TableFormat format;                  // as found
  TableForm form = TableForm::List;
  bool hasHeading = false;
  std::vector<ColumnLabel> columns;    // of a list
  std::vector<std::size_t> variables;  // which of them are the variables, from 0 on
  std::size_t function = 0;
};

/// Makes a problem of the text of a table: a list of points in any order, one a line, or a cross table of two
/// variables. Understood without being told: commas, semicolons, tabs or blanks between the columns; decimal point or
/// comma; a heading and a line of units; comments (#, %, //); quoted cells; CR LF; a byte-order mark; UTF-8 and
/// Latin-1; more columns than needed.
///
/// A table that can be read in two ways is refused with both. No value is ever made up.
/// Memory: 8 bytes a number and 16 a row beside the text, for a grid of two variables; 8 more a row where the table is
/// not a full grid with each point once.
/// Errors: OutOfMemory as std::bad_alloc; everything that is wrong with the table is a finding.
ImportOutcome importTable(std::string_view text, const ImportOptions& options);

}  // namespace tavimor
