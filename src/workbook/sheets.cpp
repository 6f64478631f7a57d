#include "workbook/sheets.h"

#include "engine/polynomial.h"
#include "formats/formulas/number_literal.h"
#include "formats/formulas/terms.h"
#include "model/grid_indices.h"
#include "model/value_lists.h"

namespace tavimor {

namespace {

constexpr lxw_row_t kMostLiveRows = 10000;
constexpr lxw_row_t kMostRows = LXW_ROW_MAX - 1;  // the first row holds the heads

std::string column(Long k) { return std::string(1, static_cast<char>('A' + k)); }

std::string cell(Long k, std::size_t row) { return column(k) + std::to_string(row); }

void head(const Sheets& sheets, lxw_worksheet* sheet, lxw_col_t at, const std::string& text) {
  worksheet_write_string(sheet, 0, at, text.c_str(), sheets.bold);
}

void headVariables(const Sheets& sheets, lxw_worksheet* sheet, const Formula& formula) {
  for (Long k = 0; k <= formula.last(); ++k) head(sheets, sheet, static_cast<lxw_col_t>(k), formula.variables[k].name);
}

// A column of the coefficients' sheet: its rows are the terms.
std::string terms(const Formula& formula, Long k) {
  const std::size_t count = termsOf(formula).size();
  return "Coefficients!$" + column(k) + "$2:$" + column(k) + "$" + std::to_string(count + 1);
}

std::string bracketed(const std::string& text) { return "(" + text + ")"; }

// The sum over the terms at the point whose coordinates stand in these cells. A power of 0 counts as 1 everywhere:
// a spreadsheet takes 0^0 for an error, so that its base is made 1 there.
class LiveFormula {
 public:
  explicit LiveFormula(const Formula& formula) : centres_(static_cast<std::size_t>(formula.last()) + 1) {
    for (Long k = 0; k <= formula.last(); ++k) {
      centres_[k] = decimalLiteral(formula.variables[k].centre);
      powers_.push_back(terms(formula, k));
    }
    coefficients_ = terms(formula, formula.last() + 1);
  }

  std::string at(const std::vector<std::string>& cells) const {
    std::string text = "=SUMPRODUCT(" + coefficients_;
    for (std::size_t k = 0; k < cells.size(); ++k) {
      const std::string offset = bracketed(cells[k] + "-" + bracketed(centres_[k]));
      text += "," + bracketed(offset + "*" + bracketed(powers_[k] + ">0") + "+" + bracketed(powers_[k] + "=0")) + "^" +
              powers_[k];
    }
    return text + ")";
  }

 private:
  std::vector<std::string> centres_;
  std::vector<std::string> powers_;
  std::string coefficients_;
};

void headFigures(const Sheets& sheets, const Formula& formula, lxw_col_t coefficient) {
  if (!formula.figures.areKnown()) return;
  const std::string when = formula.rounded ? ", before rounding" : "";
  head(sheets, sheets.coefficients, static_cast<lxw_col_t>(coefficient + 1), "right digits" + when);
  head(sheets, sheets.coefficients, static_cast<lxw_col_t>(coefficient + 2), "standard error" + when);
}

void writeFigures(const Sheets& sheets, const Formula& formula, const Term& term, lxw_row_t row,
                  lxw_col_t coefficient) {
  const FitFigures& figures = formula.figures;
  if (!figures.areKnown()) return;
  const auto column = static_cast<lxw_col_t>(coefficient + 1);
  if (figures.digits[term.number])
    worksheet_write_number(sheets.coefficients, row, column, *figures.digits[term.number], nullptr);
  else
    worksheet_write_string(sheets.coefficients, row, column, "noise", nullptr);
  if (figures.standardErrors[term.number])
    worksheet_write_number(sheets.coefficients, row, static_cast<lxw_col_t>(column + 1),
                           *figures.standardErrors[term.number], nullptr);
}

double valueOfFormula(const Formula& formula, const PerVariable<double>& x) {
  PerVariable<double> t{};
  for (Long k = 0; k <= formula.last(); ++k) t[k] = x[k] - formula.variables[k].centre;
  return valueAt(formula.Coef, {}, t);
}

}  // namespace

void fillCoefficients(const Sheets& sheets, const Formula& formula) {
  headVariables(sheets, sheets.coefficients, formula);
  const auto behind = static_cast<lxw_col_t>(formula.last() + 1);
  head(sheets, sheets.coefficients, behind, "coefficient");
  headFigures(sheets, formula, behind);
  lxw_row_t row = 1;
  for (const Term& term : termsOf(formula)) {
    for (Long k = 0; k <= formula.last(); ++k)
      worksheet_write_number(sheets.coefficients, row, static_cast<lxw_col_t>(k), term.powers[k], nullptr);
    worksheet_write_number(sheets.coefficients, row, behind, term.coefficient, nullptr);
    writeFigures(sheets, formula, term, row, behind);
    ++row;
  }
}

void fillFormula(const Sheets& sheets, const Formula& formula) {
  const char* heads[] = {"variable", "value", "from", "to", "centre"};
  for (lxw_col_t at = 0; at < 5; ++at) head(sheets, sheets.formula, at, heads[at]);
  PerVariable<double> point{};
  std::vector<std::string> cells;
  std::string inside;
  lxw_row_t row = 1;
  for (Long k = 0; k <= formula.last(); ++k, ++row) {
    const FormulaVariable& variable = formula.variables[k];
    point[k] = variable.lower / 2 + variable.upper / 2;
    worksheet_write_string(sheets.formula, row, 0, variable.name.c_str(), nullptr);
    worksheet_write_number(sheets.formula, row, 1, point[k], nullptr);
    worksheet_write_number(sheets.formula, row, 2, variable.lower, nullptr);
    worksheet_write_number(sheets.formula, row, 3, variable.upper, nullptr);
    worksheet_write_number(sheets.formula, row, 4, variable.centre, nullptr);
    const std::string number = std::to_string(row + 1);
    cells.push_back("B" + number);
    inside += (k == 0 ? "" : ",") + ("B" + number + ">=C" + number) + ",B" + number + "<=D" + number;
  }
  worksheet_write_string(sheets.formula, row, 0, formula.name.c_str(), sheets.bold);
  worksheet_write_formula_num(sheets.formula, row, 1, LiveFormula(formula).at(cells).c_str(), sheets.bold,
                              valueOfFormula(formula, point));
  const std::string warning =
      "=IF(AND(" + inside + "),\"inside the intervals\",\"OUTSIDE the intervals: no estimate\")";
  worksheet_write_formula_str(sheets.formula, row, 2, warning.c_str(), nullptr, "inside the intervals");
}

void fillStatistics(const Sheets& sheets, const Formula& formula) {
  const Statistics& figures = formula.statistics;
  lxw_row_t row = 0;
  const auto write = [&](const char* label, double value) {
    worksheet_write_string(sheets.statistics, row, 0, label, nullptr);
    worksheet_write_number(sheets.statistics, row++, 1, value, nullptr);
  };
  write("grid points", formula.gridPoints);
  write("correlation coefficient", figures.CorrCoef);
  write("standard error of estimate", figures.StdErr);
  write("sum of squared residuals", figures.SumRes2);
  write("average of the given values", figures.AvgGiven);
  write("average of the estimates", figures.AvgEstimated);
  if (formula.figures.areKnown()) write("right digits, worst coefficient", formula.figures.worstDigits);
  if (!formula.figures.doubt.empty())
    worksheet_write_string(sheets.statistics, row++, 0, ("The data determine no fit: " + formula.figures.doubt).c_str(),
                           nullptr);
  if (!formula.rounded) return;
  write("rounded: within", formula.rounded->within);
  write("rounded: bound", formula.rounded->bound);
  write("rounded: largest at a grid point", formula.rounded->largestOnGrid);
}

lxw_row_t fillData(const Sheets& sheets, const Formula& formula, const Problem& problem) {
  headVariables(sheets, sheets.data, formula);
  const auto given = static_cast<lxw_col_t>(formula.last() + 1);
  const char* heads[] = {"given", "estimated", "residual"};
  for (lxw_col_t at = 0; at < 3; ++at) head(sheets, sheets.data, static_cast<lxw_col_t>(given + at), heads[at]);
  const LiveFormula live(formula);
  const bool isLive = problem.F.size() <= kMostLiveRows;
  lxw_row_t row = 1;
  forEachIndex<Fastest::Last>(problem.F.last(), [&](const PerVariable<Long>& index) {
    if (row > kMostRows) return;
    PerVariable<double> point{};
    std::vector<std::string> cells;
    for (Long k = 0; k <= formula.last(); ++k) {
      point[k] = valueOf(problem, k, index[k]);
      cells.push_back(cell(k, row + 1));
      worksheet_write_number(sheets.data, row, static_cast<lxw_col_t>(k), point[k], nullptr);
    }
    const double estimated = valueOfFormula(formula, point);
    worksheet_write_number(sheets.data, row, given, problem.F(index), nullptr);
    if (isLive)
      worksheet_write_formula_num(sheets.data, row, static_cast<lxw_col_t>(given + 1), live.at(cells).c_str(), nullptr,
                                  estimated);
    else
      worksheet_write_number(sheets.data, row, static_cast<lxw_col_t>(given + 1), estimated, nullptr);
    const std::string residual = "=" + cell(given, row + 1) + "-" + cell(given + 1, row + 1);
    worksheet_write_formula_num(sheets.data, row, static_cast<lxw_col_t>(given + 2), residual.c_str(), nullptr,
                                problem.F(index) - estimated);
    ++row;
  });
  return row - 1;
}

}  // namespace tavimor
