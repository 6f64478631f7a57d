#pragma once

#include <vector>

#include "formats/tables/column_values.h"
#include "formats/tables/import_options.h"
#include "formats/tables/table_columns.h"

namespace tavimor {

/// Which columns are the variables, and which one is the function.
struct ColumnRoles {
  std::vector<std::size_t> variables;  // columns, from 0 on, in the order of the variables
  std::vector<ColumnValues> values;    // of each of those variables
  std::size_t function = 0;
  std::vector<TableFinding> findings;  // refusals, or the columns that are left out and why
};

/// The label of column `index`, counted from 0.
ColumnLabel columnLabel(const RecognisedTable& recognised, std::size_t index);

/// Takes the columns that are told; without any it finds them: the function is the last column of numbers, and the
/// variables are those columns, four at most, whose values make the fullest grid. Where none make one, two columns are
/// a variable and its function, and so is a first column in order; two readings that are equally good are told both.
ColumnRoles findRoles(const RecognisedTable& recognised, const TableColumns& table, const ImportOptions& options);

}  // namespace tavimor
