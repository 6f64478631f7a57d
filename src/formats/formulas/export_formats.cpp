#include "formats/formulas/export_formats.h"

#include <algorithm>

#include "formats/formulas/languages/languages.h"
#include "formats/formulas/make_formula.h"
#include "formats/formulas/workbook_file.h"
#include "formats/problem_json.h"
#include "platform/files.h"

namespace tavimor {

namespace {

template <std::string (*language)(const Formula&)>
std::string formulaIn(const Problem& problem, const Fit& fit, const FormulaOptions& options) {
  return language(formulaOf(problem, fit, options));
}

std::string gnuplotText(const Problem& problem, const Fit& fit, const FormulaOptions& options) {
  return gnuplotFormula(formulaOf(problem, fit, options), problem);
}

std::string jsonText(const Problem& problem, const Fit& fit, const FormulaOptions&) {
  return problemJson(problem, fit);
}

constexpr ExportFormat kFormats[] = {
    {"c", ".c", "C", ExportKind::Text, formulaIn<cFormula>},
    {"c++", ".cpp", "C++", ExportKind::Text, formulaIn<cppFormula>},
    {"python", ".py", "Python", ExportKind::Text, formulaIn<pythonFormula>},
    {"fortran", ".f90", "Fortran", ExportKind::Text, formulaIn<fortranFormula>},
    {"octave", ".m", "Octave, MATLAB", ExportKind::Text, formulaIn<octaveFormula>},
    {"r", ".R", "R", ExportKind::Text, formulaIn<rFormula>},
    {"javascript", ".js", "JavaScript", ExportKind::Text, formulaIn<javascriptFormula>},
    {"latex", ".tex", "LaTeX", ExportKind::Text, formulaIn<latexFormula>},
    {"text", ".txt", "Text", ExportKind::Text, formulaIn<textFormula>},
    {"gnuplot", ".gp", "gnuplot", ExportKind::Text, gnuplotText},
    {"xlsx", ".xlsx", "Workbook", ExportKind::Bytes, workbookBytes},
    {"json", ".json", "JSON", ExportKind::Problem, jsonText},
};

}  // namespace

std::span<const ExportFormat> exportFormats() { return kFormats; }

const ExportFormat* exportFormat(std::string_view name) {
  const auto* found = std::find_if(std::begin(kFormats), std::end(kFormats),
                                   [&](const ExportFormat& format) { return format.name == name; });
  return found == std::end(kFormats) ? nullptr : found;
}

std::string formulaNameOf(const std::string& path) { return utf8Path(nativePath(path).stem()); }

}  // namespace tavimor
