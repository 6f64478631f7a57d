#include "runtime/file_pair.h"

#include <cerrno>
#include <filesystem>

#include "runtime/run_time_error.h"

namespace tavimor {

namespace fs = std::filesystem;

namespace {

std::string newName(const std::string& target) { return target + ".tavimor-new"; }
std::string oldName(const std::string& target) { return target + ".tavimor-old"; }

bool exists(const std::string& path) {
  std::error_code ignored;
  return fs::exists(path, ignored);
}

bool hasInterruptedSave(const std::string& specification, const std::string& values) {
  return exists(newName(specification)) && !exists(newName(values));
}

// A link is followed, so that the file it leads to is replaced and not the link.
std::string resolved(const std::string& path) {
  std::error_code error;
  if (!fs::is_symlink(path, error)) return path;
  const fs::path target = fs::weakly_canonical(path, error);
  return error ? path : target.string();
}

// Replacing a file asks only for permission on its folder: a file that may not be written is refused here.
void requireReplaceable(const std::string& target) {
  if (!exists(target)) return;
  std::error_code ignored;
  if (!fs::is_regular_file(target, ignored)) throw RunTimeError(ErrorNumber::PathFileAccess, target);
  if (!openFile(target, "r+b")) throw fileError(errno, target);
}

void copyPermissions(const std::string& from, const std::string& to) {
  std::error_code ignored;
  const fs::file_status status = fs::status(from, ignored);
  if (fs::exists(status)) fs::permissions(to, status.permissions(), ignored);
}

}  // namespace

std::string valuesPath(const std::string& path) { return path + ".dat"; }

std::string specificationPath(const std::string& path) {
  const std::string specification = resolved(path);
  return hasInterruptedSave(specification, resolved(valuesPath(path))) ? newName(specification) : path;
}

FilePair::FilePair(const std::string& path, FileSteps& steps)
    : steps_(steps), specificationTarget_(resolved(path)), valuesTarget_(resolved(valuesPath(path))) {
  requireReplaceable(specificationTarget_);
  requireReplaceable(valuesTarget_);
  finishInterruptedSave();
  values_.emplace(newName(valuesTarget_), steps_, valuesTarget_);
  try {
    specification_.emplace(newName(specificationTarget_), steps_, specificationTarget_);
  } catch (...) {
    steps_.remove(newName(valuesTarget_));
    throw;
  }
}

FilePair::~FilePair() {
  if (committed_) return;
  // In this order: a new specification may stand alone only when its values are in place.
  steps_.remove(newName(specificationTarget_));
  steps_.remove(newName(valuesTarget_));
}

void FilePair::commit() {
  values_->finish();
  specification_->finish();
  copyPermissions(valuesTarget_, values_->path());
  copyPermissions(specificationTarget_, specification_->path());
  flushFolder();

  const bool hadOldValues = exists(valuesTarget_);
  const std::string oldValues = oldName(valuesTarget_);
  if (hadOldValues && !steps_.keepAs(valuesTarget_, oldValues)) throw fileError(errno, valuesTarget_);
  try {
    if (!steps_.replace(values_->path(), valuesTarget_)) throw fileError(errno, valuesTarget_);
    flushFolder();
    if (!steps_.replace(specification_->path(), specificationTarget_)) throw fileError(errno, specificationTarget_);
  } catch (const RunTimeError&) {
    putBackOldValues(hadOldValues);
    throw;
  }
  committed_ = true;
  if (hadOldValues) steps_.remove(oldValues);
  steps_.flushFolder(folder());  // both files are in place: a refusal here undoes nothing
}

void FilePair::finishInterruptedSave() {
  if (!hasInterruptedSave(specificationTarget_, valuesTarget_)) return;
  if (!steps_.replace(newName(specificationTarget_), specificationTarget_))
    throw fileError(errno, specificationTarget_);
}

void FilePair::putBackOldValues(bool hadOldValues) {
  steps_.remove(newName(specificationTarget_));
  const bool replaced = !exists(newName(valuesTarget_));
  if (replaced && !hadOldValues) steps_.remove(valuesTarget_);
  if (replaced && hadOldValues && !steps_.replace(oldName(valuesTarget_), valuesTarget_)) return;
  steps_.remove(oldName(valuesTarget_));
}

std::string FilePair::folder() const {
  const fs::path parent = fs::path(specificationTarget_).parent_path();
  return parent.empty() ? "." : parent.string();
}

void FilePair::flushFolder() {
  if (!steps_.flushFolder(folder())) throw fileError(errno, specificationTarget_);
}

}  // namespace tavimor
