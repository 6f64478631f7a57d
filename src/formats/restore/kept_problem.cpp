#include "formats/restore/kept_problem.h"

#include <cerrno>
#include <cstring>
#include <nlohmann/json.hpp>
#include <utility>

#include "formats/json_item.h"
#include "formats/open_problem.h"
#include "formats/pair_paths.h"
#include "formats/problem_writer.h"
#include "formats/whole_text.h"
#include "model/salvage_specs.h"
#include "model/value_lists.h"
#include "platform/system_run.h"
#include "runtime/bad_file.h"
#include "runtime/input_file.h"
#include "runtime/run_time_error.h"

namespace tavimor {

namespace {

using nlohmann::json;

// Bit for bit: a NaN is the same as itself.
bool haveSameBits(const double* a, const double* b, std::size_t count) {
  return std::memcmp(a, b, count * sizeof(double)) == 0;
}

bool haveSameBits(const std::vector<double>& a, const std::vector<double>& b) {
  return a.size() == b.size() && haveSameBits(a.data(), b.data(), a.size());
}

bool haveSameVariable(const SessionProblem& a, const SessionProblem& b, Long k) {
  const bool isSpaced = a.fields[k].chkSpaced && b.fields[k].chkSpaced;
  return a.problem.VarName[k] == b.problem.VarName[k] && a.fields[k] == b.fields[k] &&
         (isSpaced || haveSameBits(valueList(a.problem, k), valueList(b.problem, k)));
}

std::string descriptionIn(const std::string& folder) { return folder + "/description.json"; }

void writeText(const std::string& path, const std::string& text, FileSteps& steps) {
  FileHandle file = steps.create(path, Access::Private);
  const bool isWritten =
      file && steps.write(file.get(), text) && steps.flush(file.get()) && steps.close(std::move(file));
  if (!isWritten) throw fileError(errno, path);
}

std::string textOf(const json& value) { return value.dump(1, ' ', false, json::error_handler_t::replace) + '\n'; }

json headOf(const std::string& file, std::uint64_t points, std::int64_t when) {
  return {{"format", "tavimor-kept"}, {"version", 1}, {"file", file},
          {"points", points},         {"when", when}, {"systemRun", systemRun()}};
}

json descriptionOf(const TypedNames& typed, std::int64_t when) {
  json description = headOf({}, 0, when);
  description["names"] = {typed.txtVarNams};
  description["number"] = typed.txtOrder;
  description["numberIsGiven"] = typed.isNumberGiven;
  return description;
}

SessionProblem problemOfTypedNames(const JsonItem& item) {
  SessionProblem kept;
  kept.typedNames = {item.member("number").text(), item.member("names").element(0).text(),
                     item.member("numberIsGiven").truth()};
  return kept;
}

// A pair does not hold the value of a variable that has one only.
json variableOf(const SessionProblem& kept, const Problem& problem, Long k) {
  const SpecFields& fields = kept.fields[k];
  return {{"name", problem.VarName[k]},
          {"lower", fields.txtLL},
          {"upper", fields.txtUL},
          {"degree", fields.txtTerms},
          {"centre", fields.txtExpansion},
          {"numberIsOpen", bool{kept.numberIsOpen[k]}},
          {"valuesGiven", bool{problem.ValuesGiven[k]}},
          {"firstValue", valueList(problem, k).front()}};
}

void readVariable(const JsonItem& item, SessionProblem& kept, Long k) {
  kept.problem.VarName[k] = item.member("name").text();
  kept.fields[k].txtLL = item.member("lower").text();
  kept.fields[k].txtUL = item.member("upper").text();
  kept.fields[k].txtTerms = item.member("degree").text();
  kept.fields[k].txtExpansion = item.member("centre").text();
  kept.numberIsOpen[k] = item.member("numberIsOpen").truth();
  kept.problem.ValuesGiven[k] = item.member("valuesGiven").truth();
  if (kept.problem.LastPoint[k] == 0 && !item.member("firstValue").isNull())
    valueList(kept.problem, k).front() = item.member("firstValue").number();
}

json readJson(const std::string& path) {
  json read = json::parse(wholeText(path), nullptr, false);
  if (read.is_discarded()) throw BadFile(path, "the whole", "JSON", "something else");
  return read;
}

void skipSpecification(InputFile& file) {
  file.readDouble("the lower limit");
  file.readDouble("the upper limit");
  file.readText("the centre");
  file.readBoolean("the period mark");
  file.readText("the period");
  file.readLong("the degree");
}

// What the first records of a pair tell.
KeptDescription describedByPair(const std::string& path) {
  KeptDescription description;
  InputFile specification(path), values(pairPaths(path).values);
  const Long lastVar = specification.readLong("the number of variables", 0, kMaxVariables - 1);
  description.points = 1;
  values.readLong("the number of variables");
  for (Long v = 0; v <= lastVar; ++v) {
    description.names.push_back(specification.readText("a name"));
    skipSpecification(specification);
    description.points *= static_cast<std::uint64_t>(values.readLong("the number of values", 0)) + 1;
    values.readBoolean("the spacing");
  }
  return description;
}

}  // namespace

bool haveSameWork(const SessionProblem& a, const SessionProblem& b) {
  if (a.typedNames || b.typedNames) return a.typedNames == b.typedNames;
  if (a.problem.LastVar != b.problem.LastVar || a.problem.F.last() != b.problem.F.last()) return false;
  for (Long k = 0; k <= a.problem.LastVar; ++k)
    if (!haveSameVariable(a, b, k)) return false;
  return haveSameBits(a.problem.F.data(), b.problem.F.data(), a.problem.F.size());
}

std::string keptPair(const std::string& folder) { return folder + "/problem"; }

void writeKept(const SessionProblem& kept, const std::string& folder, std::int64_t when, FileSteps& steps) {
  if (kept.typedNames) return writeText(descriptionIn(folder), textOf(descriptionOf(*kept.typedNames, when)), steps);
  Problem problem = kept.problem;
  Fit fit = kept.fit;
  salvageSpecs(problem, fit, kept.fields);
  writeProblem(problem, fit, keptPair(folder), steps, {}, Access::Private);
  json description = headOf(kept.file, problem.F.size(), when);
  for (Long k = 0; k <= problem.LastVar; ++k) description["variables"].push_back(variableOf(kept, problem, k));
  writeText(descriptionIn(folder), textOf(description), steps);
}

// A pair that cannot be read is kept all the same: its owner may know what it is.
void describeKeptPair(const std::string& file, const std::string& folder, std::int64_t when, FileSteps& steps) {
  KeptDescription known;
  try {
    known = describedByPair(keptPair(folder));
  } catch (const BadFile&) {
    known = {};
  }
  json description = headOf(file, known.points, when);
  description["names"] = known.names;
  writeText(descriptionIn(folder), textOf(description), steps);
}

SessionProblem readKept(const std::string& folder) {
  const std::string path = descriptionIn(folder);
  const json root = readJson(path);
  const JsonItem item(root, "", path);
  if (root.contains("number")) return problemOfTypedNames(item);
  OpenedProblem opened = openProblem(keptPair(folder));
  SessionProblem kept;
  kept.problem = std::move(opened.problem);
  kept.fit = std::move(opened.fit);
  kept.fields = std::move(opened.fields);
  kept.file = item.member("file").text();
  if (!root.contains("variables")) return kept;
  const JsonItem variables = item.member("variables");
  if (static_cast<Long>(variables.count()) != kept.problem.LastVar + 1) variables.refuse("one item a variable");
  for (Long k = 0; k <= kept.problem.LastVar; ++k) readVariable(variables.element(k), kept, k);
  return kept;
}

KeptDescription readDescription(const std::string& folder) {
  const std::string path = descriptionIn(folder);
  const json root = readJson(path);
  const JsonItem item(root, "", path);
  KeptDescription description;
  description.file = item.member("file").text();
  description.points = static_cast<std::uint64_t>(item.member("points").number());
  description.when = static_cast<std::int64_t>(item.member("when").number());
  if (root.contains("systemRun")) description.systemRun = item.member("systemRun").text();
  const bool isPair = root.contains("names");
  const JsonItem names = item.member(isPair ? "names" : "variables");
  for (std::size_t k = 0; k < names.count(); ++k)
    description.names.push_back(isPair ? names.element(k).text() : names.element(k).member("name").text());
  return description;
}

}  // namespace tavimor
