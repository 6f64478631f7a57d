#include "cli/problem_changes.h"

#include <sstream>

#include "cli/usage_error.h"
#include "runtime/number_text.h"
#include "runtime/val.h"

namespace tavimor {

namespace {

std::vector<std::string> items(const std::string& option, const std::string& list, const Problem& problem) {
  std::vector<std::string> result;
  std::istringstream rest(list + ',');
  for (std::string item; std::getline(rest, item, ',');) result.push_back(item);
  if (std::ssize(result) > problem.LastVar + 1)
    throw UsageError(option + ": " + std::to_string(result.size()) + " numbers, but the problem has " +
                     std::to_string(problem.LastVar + 1) + (problem.LastVar == 0 ? " variable" : " variables"));
  return result;
}

void requireRoom(const std::string& option, Long degree, const Problem& problem, Long k) {
  if (degree <= problem.LastPoint[k]) return;
  throw UsageError(option + ": the degree of variable \"" + problem.VarName[k] + "\" (" + numberText(degree) +
                   ") is not below its number of values (" + numberText(addLongs(problem.LastPoint[k], 1)) + ")");
}

}  // namespace

std::vector<Long> wholeNumbers(const std::string& option, const std::string& list, const Problem& problem) {
  std::vector<Long> numbers;
  for (const std::string& item : items(option, list, problem)) {
    const bool whole = !item.empty() && item.size() < 10 && item.find_first_not_of("0123456789") == std::string::npos;
    if (!whole) throw UsageError(option + ": \"" + item + "\" is no degree");
    numbers.push_back(ValLong(item));
    requireRoom(option, numbers.back(), problem, static_cast<Long>(numbers.size()) - 1);
  }
  return numbers;
}

void applyChanges(const CommandOptions& options, OpenedProblem& opened) {
  if (!options.degrees.empty()) {
    Long k = 0;
    for (const Long degree : wholeNumbers("--degree", options.degrees, opened.problem))
      opened.fields[k++].txtTerms = numberText(degree);
  }
  if (!options.centres.empty()) {
    Long k = 0;
    for (const std::string& item : items("--centre", options.centres, opened.problem)) {
      if (item != "*" && !IsNumeric(item)) throw UsageError("--centre: \"" + item + "\" is no number and not *");
      opened.fields[k++].txtExpansion = item;
    }
  }
}

bool asksForAnotherFit(const CommandOptions& options) { return !options.degrees.empty() || !options.centres.empty(); }

double intervalLevel(const CommandOptions& options) {
  const double level = Val(options.level);
  if (!IsNumeric(options.level) || !(level > 0.0 && level < 1.0))
    throw UsageError("--level: \"" + options.level + "\" is not between 0 and 1");
  return level;
}

}  // namespace tavimor
