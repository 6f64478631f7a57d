#include "workbook/workbook.h"

#include "runtime/run_time_error.h"
#include "workbook/sheets.h"

namespace tavimor {

namespace {

constexpr time_t kNoDate = 315532800;  // the first day of 1980, where the time of archives begins

// Given and estimated values over the one variable.
void addChart(lxw_workbook* workbook, const Sheets& sheets, const Formula& formula, lxw_row_t rows) {
  lxw_chart* chart = workbook_add_chart(workbook, LXW_CHART_SCATTER);
  const char* names[] = {"given", "estimated"};
  for (lxw_col_t at = 1; at <= 2; ++at) {
    lxw_chart_series* series = chart_add_series(chart, nullptr, nullptr);
    chart_series_set_categories(series, "Data", 1, 0, rows, 0);
    chart_series_set_values(series, "Data", 1, at, rows, at);
    chart_series_set_name(series, names[at - 1]);
  }
  chart_axis_set_name(chart->x_axis, formula.variables[0].name.c_str());
  worksheet_insert_chart(sheets.data, 1, 5, chart);
}

void fill(lxw_workbook* workbook, const Problem& problem, const Formula& formula) {
  lxw_doc_properties properties{};
  properties.created = kNoDate;
  workbook_set_properties(workbook, &properties);
  Sheets sheets{workbook_add_worksheet(workbook, "Formula"), workbook_add_worksheet(workbook, "Coefficients"),
                workbook_add_worksheet(workbook, "Statistics"), workbook_add_worksheet(workbook, "Data"),
                workbook_add_format(workbook)};
  format_set_bold(sheets.bold);
  worksheet_set_column(sheets.statistics, 0, 0, 32, nullptr);
  fillFormula(sheets, formula);
  fillCoefficients(sheets, formula);
  fillStatistics(sheets, formula);
  const lxw_row_t rows = fillData(sheets, formula, problem);
  if (formula.last() == 0) addChart(workbook, sheets, formula, rows);
}

}  // namespace

void writeWorkbook(const Problem& problem, const Formula& formula, const std::string& path) {
  char workingFolder[] = ".";
  lxw_workbook_options options{};
  options.tmpdir = workingFolder;
  lxw_workbook* workbook = workbook_new_opt(path.c_str(), &options);
  if (workbook == nullptr) throw RunTimeError(ErrorNumber::OutOfMemory);
  fill(workbook, problem, formula);
  if (workbook_close(workbook) != LXW_NO_ERROR) throw RunTimeError(ErrorNumber::PathFileAccess, path);
}

}  // namespace tavimor
