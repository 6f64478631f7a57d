#include "model/add_values.h"

#include <cerrno>
#include <optional>
#include <utility>

#include "model/grid_indices.h"
#include "model/value_lists.h"
#include "platform/files.h"
#include "platform/held_signals.h"
#include "runtime/bad_file.h"
#include "runtime/file_facts.h"
#include "runtime/input_file.h"
#include "runtime/output_file.h"
#include "runtime/run_time_error.h"
#include "runtime/save_lock.h"

namespace tavimor {

namespace {

void writeTable(const Table4& table, OutputFile& file) {
  forEachIndex<Fastest::Last>(table.last(), [&](const PerVariable<Long>& index) { file.print(table(index)); });
  file.finish();
}

void readTable(Table4& table, const PerVariable<Long>& lastRead, const std::string& path) {
  InputFile file(path);
  try {
    forEachIndex<Fastest::Last>(
        lastRead, [&](const PerVariable<Long>& index) { table(index) = file.readDouble("a value of the function"); });
  } catch (const BadFile&) {
    throw RunTimeError(ErrorNumber::InputPastEnd, path);
  }
}

std::string asideName(const std::string& path, int number) { return path + '.' + std::to_string(number); }
std::string valuesName(const std::string& path) { return path + ".dat"; }

bool isFree(const std::string& path) { return factsOf(path).kind == FileKind::Missing; }

void rename(const std::string& path, const std::string& target, FileSteps& steps) {
  if (!steps.replace(path, target)) throw fileError(errno, path);
}

// A file that the user has under the work file's name goes to the first free of "FUNCTION.1", "FUNCTION.2" ... It can
// be a problem, for a plain save goes there after values have been added: then its values go with it.
void putAside(const std::string& path, FileSteps& steps) {
  if (isFree(path)) return;
  if (factsOf(path).kind != FileKind::Regular) throw RunTimeError(ErrorNumber::PathFileAccess, path);
  int number = 1;
  while (!isFree(asideName(path, number)) || !isFree(valuesName(asideName(path, number)))) ++number;
  const bool hasValues = !isFree(valuesName(path));
  rename(path, asideName(path, number), steps);
  if (hasValues) rename(valuesName(path), valuesName(asideName(path, number)), steps);
}

Table4 relaidTable(const Dimension& model, const PerVariable<Long>& newLast, FileSteps& steps) {
  Table4 table;
  table.redim(newLast);
  PerVariable<Long> lastRead{};
  for (Long d = 0; d < kMaxVariables; ++d) lastRead[d] = addLongs(newLast[d], -model.AddCount[d]);
  const std::string path = workFilePath(model);
  const HeldSignals heldSignals;
  const SaveLock lock(path, usualPatience());
  putAside(path, steps);
  std::optional<OutputFile> file(std::in_place, path, steps);
  try {
    writeTable(model.F, *file);
    readTable(table, lastRead, path);
    if (!steps.remove(path)) throw fileError(errno, path);
  } catch (...) {
    file.reset();  // some systems remove no file that is open
    steps.remove(path);
    throw;
  }
  return table;
}

}  // namespace

std::string workFilePath(const Dimension& model) { return utf8Path(nativePath(model.WorkDir) / "FUNCTION"); }

void addValues(Dimension& model, Long v, FileSteps& steps) {
  if (model.AddCount[v] == 0) return;
  if (model.AddCount[v] < 0)
    throw RunTimeError(ErrorNumber::SubscriptOutOfRange, {}, "a negative number of values to add");
  PerVariable<Long> newLast = model.LastPoint;
  newLast[v] = addLongs(newLast[v], model.AddCount[v]);
  Table4 table = relaidTable(model, newLast, steps);
  giveDefaultValues(model, v);
  model.FileName = workFilePath(model);
  model.LastPoint = newLast;
  model.F = std::move(table);
  ResizeVarValues(model, v);
}

}  // namespace tavimor
