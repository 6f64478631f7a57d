#include "formats/formulas/residual_table.h"

#include <cmath>

#include "engine/fit_on_grid.h"
#include "formats/formulas/number_literal.h"
#include "model/grid_indices.h"
#include "model/value_lists.h"
#include "runtime/number_text.h"

namespace tavimor {

namespace {

std::string cell(double value) { return std::isfinite(value) ? decimalLiteral(value) : numberText(value); }

std::string figureCell(double value) { return std::isnan(value) ? "" : cell(value); }

std::string quoted(const std::string& name) {
  std::string text = "\"";
  for (const char c : name) text += c == '"' ? "\"\"" : std::string(1, c);
  return text + "\"";
}

// A name must not end a cell or a line.
std::string withoutTabs(std::string name) {
  for (char& c : name)
    if (static_cast<unsigned char>(c) < ' ') c = ' ';
  return name;
}

}  // namespace

std::string residualTable(const Problem& problem, const Fit& fit, const std::optional<PointFigures>& figures) {
  const Table4 estimated = FitOnGrid(problem, fit.Coef);
  std::string table;
  for (Long k = 0; k <= problem.LastVar; ++k) table += quoted(problem.VarName[k]) + ",";
  table += figures ? "given,estimated,residual,leverage,studentised\n" : "given,estimated,residual\n";
  forEachIndex<Fastest::Last>(problem.F.last(), [&](const PerVariable<Long>& i) {
    for (Long k = 0; k <= problem.LastVar; ++k) table += cell(valueOf(problem, k, i[k])) + ",";
    table += cell(problem.F(i)) + "," + cell(estimated(i)) + "," + cell(problem.F(i) - estimated(i));
    if (figures) table += "," + figureCell(figures->leverage(i)) + "," + figureCell(figures->studentised(i));
    table += "\n";
  });
  return table;
}

std::string coefficientTable(const Problem& problem, const Fit& fit) {
  std::string table;
  for (Long k = 0; k <= problem.LastVar; ++k) table += withoutTabs(problem.VarName[k]) + "\t";
  table += "coefficient\n";
  forEachIndex(fit.Coef.last(), [&](const PerVariable<Long>& j) {
    for (Long k = 0; k <= problem.LastVar; ++k) table += std::to_string(j[k]) + "\t";
    table += cell(fit.Coef(j)) + "\n";
  });
  return table;
}

}  // namespace tavimor
