#include "cli/import_command.h"

#include "cli/output.h"
#include "cli/progress_bar.h"
#include "formats/problem_writer.h"
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

ImportOutcome importShowingProgress(const std::string& table, const ImportArguments& arguments) {
  ImportOptions options = optionsFrom(arguments);
  ProgressBar bar;
  options.progress = [&](double part) { bar.show(part); };
  const TableText text = table == kStandardInput ? TableText::ofStandardInput() : TableText::ofFile(table);
  return importTable(text.view(), options);
}

}  // namespace

ExitCode importCommand(const std::string& table, const std::string& output, const ImportArguments& arguments) {
  const ImportOutcome outcome = importShowingProgress(table, arguments);
  if (!outcome.problem) {
    for (const Finding& finding : outcome.findings)
      if (finding.isRefusal()) complain(table == kStandardInput ? "standard input" : table, finding.text);
    return ExitCode::Error;
  }
  writeProblem(*outcome.problem, Fit(), output);
  for (const Finding& finding : outcome.findings) printLine(finding.text);
  finishOutput();
  return ExitCode::Success;
}

}  // namespace tavimor
