#include <algorithm>

#include "formats/json_item.h"
#include "formats/problem_json.h"
#include "formats/whole_text.h"
#include "model/value_lists.h"
#include "runtime/bad_file.h"
#include "runtime/number_text.h"
#include "runtime/text.h"

namespace tavimor {

namespace {

using nlohmann::json;

// A name that a problem file can hold too: there it would end at a line's end, and at a quotation mark before a comma.
bool canStandInAFile(std::string_view name) {
  const bool hasControl = std::any_of(name.begin(), name.end(), [](unsigned char c) { return c < ' '; });
  for (std::size_t quote = name.find('"'); quote != std::string_view::npos; quote = name.find('"', quote + 1))
    if (trimmed(name.substr(quote + 1)).starts_with(',')) return false;
  return !hasControl;
}

void readVariable(const JsonItem& item, Problem& problem, Long k) {
  item.requireNoOther(
      {"name", "lower", "upper", "centre", "degree", "equallySpaced", "periodFlag", "period", "values"});
  problem.VarName[k] = item.member("name").text();
  if (!canStandInAFile(problem.VarName[k])) item.member("name").refuse("a name that a problem file can hold");
  problem.LowerLimit[k] = item.member("lower").number();
  problem.UpperLimit[k] = item.member("upper").number();
  problem.Centre[k] = item.member("centre").number();
  problem.Degree[k] = item.member("degree").whole(0);
  problem.EquallySpaced[k] = item.member("equallySpaced").truth();
  problem.PeriodFlag[k] = item.member("periodFlag").truth();
  problem.Period[k] = item.member("period").number();
  const JsonItem values = item.member("values");
  if (values.count() == 0) values.refuse("an array of one number at least");
  problem.LastPoint[k] = static_cast<Long>(values.count()) - 1;
  problem.ValuesGiven[k] = true;
  ResizeVarValues(problem, k);
  values.numbers(valueList(problem, k).data(), values.count(), 1);
}

// The table's elements from `first` on, along axis k and those behind it.
void readNested(const JsonItem& item, Table4& table, Long k, Long lastAxis, double* first) {
  if (k == lastAxis) return item.numbers(first, table.extent(k), table.stride(k));
  if (item.count() != table.extent(k)) item.refuse("an array of " + std::to_string(table.extent(k)) + " arrays");
  for (std::size_t i = 0; i < table.extent(k); ++i)
    readNested(item.element(i), table, k + 1, lastAxis, first + i * table.stride(k));
}

// Before memory is taken for a table: its numbers must be there.
void readTable(const JsonItem& item, Table4& table, const PerVariable<Long>& last, Long lastAxis) {
  double numbers = 1.0;
  for (const Long bound : last) numbers *= static_cast<double>(bound) + 1.0;
  if (static_cast<double>(item.scalars(lastAxis + 1)) != numbers)
    item.refuse("nested arrays of " + numberText(numbers) + " numbers, as the variables have it");
  table.redim(last);
  readNested(item, table, 0, lastAxis, table.data());
}

void readFit(const JsonItem& item, const Problem& problem, Fit& fit) {
  fit.FitDone = !item.isNull();
  if (!fit.FitDone) return;
  item.requireNoOther({"coefficients", "correlationCoefficient", "standardError", "sumOfSquaredResiduals",
                       "averageGiven", "averageEstimated"});
  readTable(item.member("coefficients"), fit.Coef, problem.Degree, problem.LastVar);
  fit.CorrCoef = item.member("correlationCoefficient").number();
  fit.StdErr = item.member("standardError").number();
  fit.SumRes2 = item.member("sumOfSquaredResiduals").number();
  fit.AvgGiven = item.member("averageGiven").number();
  fit.AvgEstimated = item.member("averageEstimated").number();
}

json parsed(std::string_view text, const std::string& path) {
  try {
    return json::parse(text);
  } catch (const json::parse_error& error) {
    const std::size_t at = std::min(error.byte == 0 ? 0 : error.byte - 1, text.size());
    const auto lineEnds = std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(at), '\n');
    std::string found = at == text.size() ? "nothing" : '"' + utf8FromBytes(text.substr(at, 1)) + '"';
    if (at < text.size() && static_cast<unsigned char>(text[at]) < ' ') found = "a line's end or a control character";
    throw BadFile(path, 1 + static_cast<long>(lineEnds), "JSON", found);
  }
}

}  // namespace

StoredProblem problemFromJson(std::string_view text, const std::string& path) {
  const json root = parsed(text, path);
  const JsonItem item(root, "", path);
  StoredProblem read;
  if (item.member("format").text() != "tavimor-problem") item.member("format").refuse("\"tavimor-problem\"");
  item.member("version").whole(1, 1);
  item.requireNoOther({"format", "version", "variables", "function", "fit"});
  const JsonItem variables = item.member("variables");
  if (variables.count() < 1 || variables.count() > kMaxVariables) variables.refuse("an array of one to four variables");
  read.problem.LastVar = static_cast<Long>(variables.count()) - 1;
  for (std::size_t k = 0; k < variables.count(); ++k)
    readVariable(variables.element(k), read.problem, static_cast<Long>(k));
  readTable(item.member("function"), read.problem.F, read.problem.LastPoint, read.problem.LastVar);
  for (Long k = 0; k <= read.problem.LastVar; ++k) read.centres[k] = numberText(read.problem.Centre[k]);
  read.problem.NumGridPoints = static_cast<Long>(read.problem.F.size());
  readFit(item.member("fit"), read.problem, read.fit);
  return read;
}

StoredProblem readProblemJson(const std::string& path) { return problemFromJson(wholeText(path), path); }

}  // namespace tavimor
