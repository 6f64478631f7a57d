#include "table_import_check.h"

#include <algorithm>
#include <charconv>
#include <stdexcept>
#include <string>

#include "formats/tables/import_table.h"
#include "model/grid_indices.h"
#include "model/value_lists.h"

namespace tavimor {

namespace {

void append(std::string& text, double value, char end) {
  constexpr std::size_t kLongestNumber = 32;
  char digits[kLongestNumber];
  text.append(digits, std::to_chars(digits, digits + sizeof digits, value).ptr);
  text += end;
}

// The points of a problem as a list with semicolons, one a line, under a heading.
std::string listOf(const Problem& problem) {
  std::string text;
  for (Long k = 0; k <= problem.LastVar; ++k) text += "v" + std::to_string(k) + ";";
  text += "f\n";
  forEachIndex(problem.LastPoint, [&](const PerVariable<Long>& index) {
    for (Long k = 0; k <= problem.LastVar; ++k) append(text, valueOf(problem, k, index[k]), ';');
    append(text, problem.F(index), '\n');
  });
  return text;
}

bool isSame(const Table4& a, const Table4& b) {
  return a.last() == b.last() && std::equal(a.data(), a.data() + a.size(), b.data());
}

void requireConsistent(const ImportOutcome& outcome) {
  if (outcome.problem.has_value() == anyRefusal(outcome.findings))
    throw std::logic_error("a problem and a refusal, or neither");
  for (const TableFinding& finding : outcome.findings)
    if (finding.text.empty() || finding.text.find('\n') != std::string::npos)
      throw std::logic_error("a finding that is no line: " + finding.text);
}

ImportOptions optionsOfOwnList(const Problem& problem) {
  ImportOptions options;
  options.separator = ';';
  options.mark = DecimalMark::Point;
  options.tolerance = 0.0;
  options.columns.clear();
  for (Long k = 0; k <= problem.LastVar; ++k) options.columns.push_back("v" + std::to_string(k));
  options.columns.emplace_back("f");
  return options;
}

void requireOwnList(const Problem& problem) {
  const ImportOutcome again = importTable(listOf(problem), optionsOfOwnList(problem));
  if (!again.problem || !isSame(problem.F, again.problem->F))
    throw std::logic_error("its own points give another problem");
}

}  // namespace

void checkTableImport(std::string_view text) {
  ImportOptions options;
  const ImportOutcome strict = importTable(text, options);
  requireConsistent(strict);
  options.duplicates = Duplicates::Mean;
  options.gaps = Gaps::Shrink;
  const ImportOutcome lenient = importTable(text, options);
  requireConsistent(lenient);
  if (lenient.problem) requireOwnList(*lenient.problem);
}

}  // namespace tavimor
