#include "formats/formulas/export_formats.h"

#include <algorithm>

#include "formats/formulas/languages/languages.h"
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
    {"c", ".c", formulaIn<cFormula>},
    {"c++", ".cpp", formulaIn<cppFormula>},
    {"python", ".py", formulaIn<pythonFormula>},
    {"fortran", ".f90", formulaIn<fortranFormula>},
    {"octave", ".m", formulaIn<octaveFormula>},
    {"r", ".R", formulaIn<rFormula>},
    {"javascript", ".js", formulaIn<javascriptFormula>},
    {"latex", ".tex", formulaIn<latexFormula>},
    {"text", ".txt", formulaIn<textFormula>},
    {"gnuplot", ".gp", gnuplotText},
    {"json", ".json", jsonText},
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
