#include "cli/import_command.h"

#include "cli/output.h"
#include "cli/problem_files.h"
#include "cli/progress_bar.h"
#include "formats/problem_json.h"
#include "formats/tables/import_table.h"
#include "formats/tables/table_text.h"

namespace tavimor {

namespace {

constexpr const char* kStandardInput = "-";

ImportOptions optionsFrom(const ImportArguments& arguments) {
  ImportOptions options;
  options.columns = arguments.columns;
  options.degrees = arguments.degrees;
  options.centres = arguments.centres;
  if (!arguments.separator.empty()) {
    options.separator = separatorFromText(arguments.separator);
    if (!options.separator) throw UsageError("--separator: comma, semicolon, tab, blank or one character");
  }
  if (arguments.decimalComma) options.mark = DecimalMark::Comma;
  if (!arguments.header.empty()) options.heading = arguments.header == "yes" ? Heading::Yes : Heading::No;
  if (!arguments.form.empty()) options.form = arguments.form == "cross" ? TableForm::Cross : TableForm::List;
  options.tolerance = arguments.tolerance;
  if (arguments.duplicates == "mean") options.duplicates = Duplicates::Mean;
  if (arguments.gaps == "shrink") options.gaps = Gaps::Shrink;
  return options;
}

std::string nameOf(const std::string& table) { return table == kStandardInput ? "standard input" : table; }

// No table begins with a brace.
bool isJson(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \t\r\n\xEF\xBB\xBF");
  return first != std::string_view::npos && text[first] == '{';
}

ExitCode importJson(const std::string& table, std::string_view text, const std::string& output,
                    const ImportArguments& arguments) {
  if (arguments != ImportArguments{}) throw UsageError("the options are those of tables; this is a problem as JSON");
  const StoredProblem read = problemFromJson(text, nameOf(table));
  saveShowingProgress(read.problem, read.fit, output);
  printLine(read.fit.FitDone ? "A problem as JSON, with its fit." : "A problem as JSON, without a fit.");
  finishOutput();
  return ExitCode::Success;
}

ImportOutcome importShowingProgress(std::string_view text, ImportOptions options) {
  ProgressBar bar;
  options.progress = [&](double part) { bar.show(part); };
  return importTable(text, options);
}

}  // namespace

ExitCode importCommand(const std::string& table, const std::string& output, const ImportArguments& arguments) {
  const ImportOptions options = optionsFrom(arguments);
  const TableText text = table == kStandardInput ? TableText::ofStandardInput() : TableText::ofFile(table);
  if (isJson(text.view())) return importJson(table, text.view(), output, arguments);
  const ImportOutcome outcome = importShowingProgress(text.view(), options);
  if (!outcome.problem) {
    for (const TableFinding& finding : outcome.findings)
      if (finding.isRefusal()) complain(nameOf(table), finding.text);
    return ExitCode::Error;
  }
  saveShowingProgress(*outcome.problem, Fit(), output);
  for (const TableFinding& finding : outcome.findings) printLine(finding.text);
  finishOutput();
  return ExitCode::Success;
}

}  // namespace tavimor
