#pragma once

#include <xlsxwriter.h>

#include "formats/formulas/formula.h"

namespace tavimor {

/// The sheets of a workbook, each filled by one function. Variables stand in columns A, B ..., in their order.
struct Sheets {
  lxw_worksheet* formula;
  lxw_worksheet* coefficients;
  lxw_worksheet* statistics;
  lxw_worksheet* data;
  lxw_format* bold;
};

/// Powers in the variables' columns, behind them the coefficient, its right digits and its standard error, as far as
/// those are known; the first row names them.
void fillCoefficients(const Sheets& sheets, const Formula& formula);

/// A row for each variable: name, value, limits, centre; below them the live value of the formula.
void fillFormula(const Sheets& sheets, const Formula& formula);

void fillStatistics(const Sheets& sheets, const Formula& formula);

/// A row for each grid point: the variables, given, estimated, residual. Returns the number of rows.
lxw_row_t fillData(const Sheets& sheets, const Formula& formula, const Problem& problem);

}  // namespace tavimor
