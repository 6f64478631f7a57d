#include "formats/foreign_file.h"

#include <filesystem>
#include <utility>

#include "formats/pair_paths.h"
#include "model/table4.h"
#include "platform/files.h"
#include "runtime/bad_file.h"
#include "runtime/input_file.h"

namespace tavimor {

namespace {

constexpr const char* kItem = "the beginning of a problem";

using Wanted = ForeignFile::Wanted;

// The record of the first variable.
void readSpecificationRecord(InputFile& file) {
  file.readText(kItem);
  file.readDouble(kItem);
  file.readDouble(kItem);
  file.readText(kItem);
  file.readBoolean(kItem);
  file.readText(kItem);
  file.readLong(kItem);
}

// The number of values and the spacing of the first variable.
void readValuesRecord(InputFile& file) {
  file.readLong(kItem);
  file.readBoolean(kItem);
}

bool holds(const std::string& path, Wanted wanted) {
  InputFile file(path);
  try {
    file.readLong(kItem, 0, kMaxVariables - 1);
    wanted == Wanted::Specification ? readSpecificationRecord(file) : readValuesRecord(file);
    return true;
  } catch (const BadFile&) {
    return false;
  }
}

// What is no regular file is not replaced in any case.
bool hasContent(const std::string& path) {
  std::error_code ignored;
  const std::filesystem::path file = nativePath(path);
  return std::filesystem::is_regular_file(file, ignored) && std::filesystem::file_size(file, ignored) != 0;
}

void requireHalf(const std::string& path, Wanted wanted) {
  if (hasContent(path) && !holds(path, wanted)) throw ForeignFile(path, wanted);
}

}  // namespace

ForeignFile::ForeignFile(std::string path, Wanted wanted) : Failure(std::move(path)), wanted_(wanted) {}

const char* ForeignFile::what() const noexcept {
  return wanted_ == Wanted::Specification ? "the file is there already and is not the specification of a problem"
                                          : "the file is there already and is not the values of a problem";
}

void requireSameHalves(const std::string& path) {
  const PairPaths pair = pairPaths(path);
  requireHalf(pair.specification, Wanted::Specification);
  requireHalf(pair.values, Wanted::Values);
}

}  // namespace tavimor
