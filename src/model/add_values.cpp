#include "model/add_values.h"

#include <algorithm>
#include <filesystem>
#include <utility>

#include "model/var_values.h"
#include "runtime/bad_file.h"
#include "runtime/input_file.h"
#include "runtime/output_file.h"
#include "runtime/run_time_error.h"

namespace tavimor {

namespace {

void writeTable(const Table4& table, const std::string& path, FileSteps& steps) {
  OutputFile file(path, steps);
  const PerVariable<Long>& last = table.last();
  for (Long i0 = 0; i0 <= last[0]; ++i0)
    for (Long i1 = 0; i1 <= last[1]; ++i1)
      for (Long i2 = 0; i2 <= last[2]; ++i2)
        for (Long i3 = 0; i3 <= last[3]; ++i3) file.print(table(i0, i1, i2, i3));
  file.finish();
}

void readTable(Table4& table, const PerVariable<Long>& lastRead, const std::string& path) {
  InputFile file(path);
  for (Long i0 = 0; i0 <= lastRead[0]; ++i0)
    for (Long i1 = 0; i1 <= lastRead[1]; ++i1)
      for (Long i2 = 0; i2 <= lastRead[2]; ++i2)
        for (Long i3 = 0; i3 <= lastRead[3]; ++i3) table(i0, i1, i2, i3) = file.readDouble("a value of the function");
}

Table4 relaidTable(const Dimension& model, const PerVariable<Long>& newLast, FileSteps& steps) {
  const std::string path = workFilePath(model);
  Table4 table;
  table.redim(newLast);
  PerVariable<Long> lastRead{};
  for (Long d = 0; d < kMaxVariables; ++d) lastRead[d] = addLongs(newLast[d], -model.AddCount[d]);
  writeTable(model.F, path, steps);
  try {
    readTable(table, lastRead, path);
  } catch (const BadFile&) {
    throw RunTimeError(ErrorNumber::InputPastEnd, path);
  }
  if (!steps.remove(path)) throw RunTimeError(ErrorNumber::PathFileAccess, path);
  return table;
}

}  // namespace

std::string workFilePath(const Dimension& model) {
  return (std::filesystem::path(model.WorkDir) / "FUNCTION").string();
}

void addValues(Dimension& model, Long v, FileSteps& steps) {
  if (model.AddCount[v] == 0) return;
  giveDefaultValues(model, v);
  PerVariable<Long> newLast = model.LastPoint;
  newLast[v] = addLongs(newLast[v], model.AddCount[v]);
  model.FileName = workFilePath(model);
  Table4 table = relaidTable(model, newLast, steps);
  model.LastPoint = newLast;
  model.F = std::move(table);
  ResizeVarValues(model, v);
}

}  // namespace tavimor
