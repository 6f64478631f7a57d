#include "cli/export_command.h"

#include "analysis/figures.h"
#include "cli/fit_check.h"
#include "cli/fitting.h"
#include "cli/output.h"
#include "cli/problem_files.h"
#include "cli/progress_bar.h"
#include "formats/formulas/export_formats.h"
#include "formats/formulas/make_formula.h"
#include "formats/formulas/residual_table.h"
#include "formats/replaced_file.h"

namespace tavimor {

namespace {

void requireFitting(const ExportFormat& format, const std::string& output, const ExportArguments& arguments) {
  if (format.kind == ExportKind::Bytes && output.empty())
    throw UsageError(std::string(format.name) + " goes to a file: -o OUT is needed");
  if (format.kind == ExportKind::Problem && arguments.precise)
    throw UsageError("--precise does not go with " + std::string(format.name) + ", which holds the problem as it is");
  if (format.kind == ExportKind::Problem && arguments.options.within)
    throw UsageError("--within does not go with " + std::string(format.name) + ", which holds the whole problem");
}

void deliver(const std::string& bytes, const std::string& output) {
  if (!output.empty()) return replaceFile(output, bytes);
  printText(bytes);
  finishOutput();
}

// False where there is no formula, which the user has been told then.
bool hasFormulaToExport(const OpenedProblem& opened, const std::string& path) {
  if (hasFormula(opened.fit)) return true;
  complain(path, "no formula: a coefficient of the fit is no number");
  return false;
}

bool provideFormula(OpenedProblem& opened, const std::string& path, const ExportArguments& arguments, Check check,
                    FormulaOptions& options) {
  if (!arguments.precise && !provideFit(opened, path)) return false;
  if (arguments.precise || check == Check::Yes) {
    const SecondOpinion opinion = opinionShowingProgress(opened);
    if (arguments.precise && !providePreciseFit(opened, opinion, path)) return false;
    options.figures = fitFigures(opinion, opened.problem, opened.fit);
    if (const auto warning = warningOf(opinion, opened, path)) complain(path, *warning);
  }
  return hasFormulaToExport(opened, path);
}

std::optional<PointFigures> figuresOfPoints(OpenedProblem& opened, const std::string& path) {
  const SecondOpinion opinion = opinionShowingProgress(opened);
  if (!opinion.isExact()) complain(path, "no leverages: " + reasonText(opinion.precise.finding, opened.problem));
  ProgressBar bar;
  AnalysisOptions how;
  how.progress = [&](double share) { bar.show(share); };
  return pointFigures(opinion, opened.problem, how);
}

}  // namespace

ExitCode exportCommand(const std::string& problem, const std::string& output, const ExportArguments& arguments,
                       Check check) {
  const ExportFormat& format = *exportFormat(arguments.format);
  FormulaOptions options = arguments.options;
  requireFitting(format, output, arguments);
  if (options.name.empty()) options.name = formulaNameOf(problem);
  OpenedProblem opened = openShowingProgress(problem);
  if (format.kind != ExportKind::Problem && !provideFormula(opened, problem, arguments, check, options))
    return ExitCode::NoFit;
  deliver(format.write(opened.problem, opened.fit, options), output);
  return ExitCode::Success;
}

ExitCode residualsCommand(const std::string& problem, const std::string& output, Check check) {
  OpenedProblem opened = openShowingProgress(problem);
  if (!provideFit(opened, problem)) return ExitCode::NoFit;
  std::optional<PointFigures> figures;
  if (check == Check::Yes) figures = figuresOfPoints(opened, problem);
  deliver(residualTable(opened.problem, opened.fit, figures), output);
  return ExitCode::Success;
}

}  // namespace tavimor
