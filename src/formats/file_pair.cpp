#include "formats/file_pair.h"

#include <cerrno>
#include <filesystem>

#include "platform/files.h"
#include "runtime/run_time_error.h"

namespace tavimor {

namespace fs = std::filesystem;

namespace {

std::string newName(const std::string& target) { return target + ".tavimor-new"; }
std::string oldName(const std::string& target) { return target + ".tavimor-old"; }
std::string backName(const std::string& target) { return target + ".tavimor-back"; }

bool isFile(const std::string& path) {
  std::error_code ignored;
  return fs::is_regular_file(nativePath(path), ignored);
}

bool valuesAreOnTheirWayBack(const PairPaths& pair) { return isFile(backName(pair.values)); }

bool newValuesAreInPlace(const PairPaths& pair) {
  return isFile(newName(pair.specification)) && !isFile(newName(pair.values));
}

// The file that a link leads to, which need not exist.
std::string resolved(const std::string& path) {
  constexpr int mostLinks = 40;  // as many as Linux follows
  fs::path target = nativePath(path);
  std::error_code ignored;
  for (int links = 0; fs::is_symlink(target, ignored); ++links) {
    if (links == mostLinks) throw RunTimeError(ErrorNumber::PathFileAccess, path);
    target = target.parent_path() / fs::read_symlink(target, ignored);
  }
  return utf8Path(target);
}

PairPaths resolved(const PairPaths& pair) { return {resolved(pair.specification), resolved(pair.values)}; }

// Replacing a file asks only for permission on its folder: a file that may not be written is refused here.
void requireReplaceable(const std::string& path) {
  std::error_code ignored;
  if (!fs::exists(nativePath(path), ignored)) return;
  if (!isFile(path)) throw RunTimeError(ErrorNumber::PathFileAccess, path);
  if (!openFile(path, "r+b")) throw fileError(errno, path);
}

void requireTwoFiles(const PairPaths& pair) {
  std::error_code ignored;
  if (pair.specification == pair.values ||
      fs::equivalent(nativePath(pair.specification), nativePath(pair.values), ignored))
    throw RunTimeError(ErrorNumber::FileAlreadyOpen, pair.values);
}

void copyPermissions(const std::string& from, const std::string& to) {
  std::error_code ignored;
  const fs::file_status status = fs::status(nativePath(from), ignored);
  if (fs::exists(status)) fs::permissions(nativePath(to), status.permissions(), ignored);
}

std::string folderOf(const std::string& path) {
  const std::string parent = utf8Path(nativePath(path).parent_path());
  return parent.empty() ? "." : parent;
}

}  // namespace

PairPaths pairPaths(const std::string& path) { return {path, path + ".dat"}; }

PairPaths readablePair(const std::string& path) {
  PairPaths pair = pairPaths(path);
  const PairPaths target = resolved(pair);
  if (valuesAreOnTheirWayBack(target))
    pair.values = backName(target.values);
  else if (newValuesAreInPlace(target))
    pair.specification = newName(target.specification);
  return pair;
}

FilePair::FilePair(const std::string& path, FileSteps& steps) : steps_(steps) {
  const PairPaths pair = pairPaths(path);
  requireReplaceable(pair.specification);
  requireReplaceable(pair.values);
  target_ = resolved(pair);
  requireTwoFiles(target_);
  finishInterruptedSave();
  try {
    create(values_, target_.values);
    flushFolders();  // a new specification must never be on the disk alone while it is written
    create(specification_, target_.specification);
  } catch (...) {
    discard();
    throw;
  }
}

FilePair::~FilePair() {
  if (!settled_) discard();
}

void FilePair::commit() {
  values_->finish();
  specification_->finish();
  flushFolders();
  const std::string oldValues = oldName(target_.values);
  hadOldValues_ = isFile(target_.values);
  if (hadOldValues_ && !steps_.keepAs(target_.values, oldValues)) throw fileError(errno, target_.values);
  try {
    move(newName(target_.values), target_.values);
    flushFolders();
    move(newName(target_.specification), target_.specification);
  } catch (...) {
    putBackOldValues();
    throw;
  }
  settled_ = true;
  // The new pair is in place: nothing that is refused from here on undoes it.
  removed(oldValues);
  steps_.flushFolder(folderOf(target_.specification));
}

// Leaves none of the files that a killed save had beside the targets.
void FilePair::finishInterruptedSave() {
  if (valuesAreOnTheirWayBack(target_)) {
    remove(newName(target_.specification));
    move(backName(target_.values), target_.values);
  } else if (newValuesAreInPlace(target_)) {
    move(newName(target_.specification), target_.specification);
  }
  remove(newName(target_.specification));
  remove(newName(target_.values));
  remove(oldName(target_.values));
}

void FilePair::create(std::optional<OutputFile>& file, const std::string& target) {
  file.emplace(newName(target), steps_, target);
  copyPermissions(target, file->path());
}

// Each step leaves one whole pair to read, so that the first refusal among them can end it.
void FilePair::putBackOldValues() {
  if (isFile(newName(target_.values))) return;  // the new values have not moved: there is only something to discard
  settled_ = true;
  if (!hadOldValues_) {
    if (removed(target_.values)) removed(newName(target_.specification));
    return;
  }
  if (!steps_.replace(oldName(target_.values), backName(target_.values))) return;
  if (!removed(newName(target_.specification))) return;
  steps_.replace(backName(target_.values), target_.values);
}

// In this order: a new specification that stands alone is the one to read.
void FilePair::discard() {
  values_.reset();
  specification_.reset();
  if (!removed(newName(target_.specification))) return;
  steps_.flushFolder(folderOf(target_.specification));
  removed(newName(target_.values));
  removed(oldName(target_.values));
}

bool FilePair::removed(const std::string& path) {
  std::error_code ignored;
  return !fs::exists(fs::symlink_status(nativePath(path), ignored)) || steps_.remove(path);
}

void FilePair::remove(const std::string& path) {
  if (!removed(path)) throw fileError(errno, path);
}

void FilePair::move(const std::string& path, const std::string& target) {
  if (!steps_.replace(path, target)) throw fileError(errno, target);
}

void FilePair::flushFolders() {
  const std::string folder = folderOf(target_.values);
  const std::string secondFolder = folderOf(target_.specification);
  if (!steps_.flushFolder(folder)) throw fileError(errno, target_.values);
  if (secondFolder != folder && !steps_.flushFolder(secondFolder)) throw fileError(errno, target_.specification);
}

}  // namespace tavimor
