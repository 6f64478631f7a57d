#pragma once

#include "formats/tables/recognise_table.h"
#include "formats/tables/table_columns.h"

namespace tavimor {

/// A cross table as the list of its points: columns for the first column's variable, the first row's, and the function,
/// with names from the corner ("p" or "p\T"). Empty cells are no rows of it.
struct CrossPoints {
  RecognisedTable recognised;
  TableColumns table;
};

CrossPoints pointsOfCrossTable(const RecognisedTable& recognised, TableColumns table);

/// The same table with its first row of numbers, the corner among them, taken for the values of a variable.
void takeFirstRowForAcross(RecognisedTable& recognised, TableColumns& table);

}  // namespace tavimor
