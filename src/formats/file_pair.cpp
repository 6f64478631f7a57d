#include "formats/file_pair.h"

#include <cerrno>
#include <filesystem>
#include <vector>

#include "formats/replaced_file.h"
#include "formats/work_names.h"
#include "platform/files.h"
#include "runtime/file_facts.h"
#include "runtime/run_time_error.h"

namespace tavimor {

namespace fs = std::filesystem;

namespace {

bool isFile(const std::string& path) { return factsOf(path).kind == FileKind::Regular; }

void requireNoWorkName(const PairPaths& pair) {
  for (const std::string& path : {pair.specification, pair.values})
    if (isWorkName(path)) throw RunTimeError(ErrorNumber::PathFileAccess, path);
}

void requireTwoFiles(const PairPaths& pair) {
  if (pair.specification == pair.values || factsOf(pair.specification).isSameFileAs(factsOf(pair.values)))
    throw RunTimeError(ErrorNumber::FileAlreadyOpen, pair.values);
}

// The files to replace, where that can be.
PairPaths replaceable(const std::string& path) {
  const PairPaths named = pairPaths(path);
  const PairPaths target = resolved(named);
  requireNoWorkName(named);
  requireNoWorkName(target);
  requireReplaceable(target.specification);
  requireReplaceable(target.values);
  requireTwoFiles(target);
  return target;
}

// What saves of this target that were killed have left under names of their own.
std::vector<std::string> leftOver(const std::string& target) {
  const fs::path name = nativePath(target).filename();
  const fs::path folder = nativePath(folderOf(target));
  std::vector<std::string> found;
  std::error_code error;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error))
    if (isOwnName(utf8Path(entry->path().filename()), utf8Path(name))) found.push_back(utf8Path(entry->path()));
  // A folder that may be written but not read shows nothing.
  if (error && error != std::errc::permission_denied) throw fileError(error.default_error_condition().value(), target);
  return found;
}

}  // namespace

FilePair::FilePair(const std::string& path, FileSteps& steps, Patience patience, Access newAccess)
    : steps_(steps),
      target_(replaceable(path)),
      newAccess_(newAccess),
      valuesLock_(target_.values, patience),
      specificationLock_(target_.specification, patience) {
  finishInterruptedSave();
  try {
    create(values_, target_.values);
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
  finish(*values_, target_.values);
  finish(*specification_, target_.specification);
  nameNewFiles();
  hadOldValues_ = isFile(target_.values);
  if (hadOldValues_ && !steps_.keepAs(target_.values, oldName(target_.values))) throw fileError(errno, target_.values);
  try {
    putIntoPlace();
  } catch (...) {
    putBackOldValues();
    throw;
  }
  settled_ = true;
  // The new pair is in place: nothing that is refused from here on undoes it.
  removed(oldName(target_.values));
  steps_.flushFolder(folderOf(target_.specification));
}

// Leaves none of the files that a killed save had beside the targets. What comes first must be on the disk first: each
// of these steps decides which pair is the one to read.
void FilePair::finishInterruptedSave() {
  const std::string newSpecification = newName(target_.specification), newValues = newName(target_.values);
  const std::string valuesOnTheirWay = backName(target_.values);
  const bool newValuesAreInPlace = isFile(newSpecification) && !isFile(newValues) && isFile(target_.values);
  if (newValuesAreInPlace && !isFile(valuesOnTheirWay)) move(newSpecification, target_.specification);
  remove(newSpecification);
  flushFolders();
  if (isFile(valuesOnTheirWay)) move(valuesOnTheirWay, target_.values);
  for (const std::string& path : {valuesOnTheirWay, newValues, oldName(target_.values)}) remove(path);
  for (const std::string& target : {target_.values, target_.specification})
    for (const std::string& path : leftOver(target)) removed(path);
}

void FilePair::create(std::optional<OutputFile>& file, const std::string& target) {
  const bool isFirst = factsOf(target).kind == FileKind::Missing;
  file.emplace(ownName(target), steps_, target, isFirst ? newAccess_ : Access::Private);
}

void FilePair::finish(OutputFile& file, const std::string& target) {
  file.takeAttributesOf(target);
  file.finish();
}

// A new specification must never be on the disk alone.
void FilePair::nameNewFiles() {
  move(values_->path(), newName(target_.values));
  flushFolders();
  move(specification_->path(), newName(target_.specification));
  flushFolders();
}

void FilePair::putIntoPlace() {
  move(newName(target_.values), target_.values);
  flushFolders();
  move(newName(target_.specification), target_.specification);
}

// Each step leaves one whole pair to read, so that the first refusal among them can end it.
void FilePair::putBackOldValues() {
  FileFacts values, specification;
  const bool haveNotMoved =
      queryFile(newName(target_.values), LastLink::Keep, values) && values.kind == FileKind::Regular;
  if (haveNotMoved) return;  // there is only something to discard
  settled_ = true;
  // The specification can have moved although that was called refused: then the new pair is complete.
  if (!queryFile(newName(target_.specification), LastLink::Keep, specification) ||
      specification.kind != FileKind::Regular)
    return;
  if (!hadOldValues_) {
    if (removed(target_.values) && foldersAreFlushed()) removed(newName(target_.specification));
    return;
  }
  if (!steps_.replace(oldName(target_.values), backName(target_.values)) || !foldersAreFlushed()) return;
  if (!removed(newName(target_.specification)) || !foldersAreFlushed()) return;
  steps_.replace(backName(target_.values), target_.values);
}

// In this order: a new specification that stands alone is the one to read.
void FilePair::discard() {
  for (std::optional<OutputFile>* file : {&values_, &specification_}) {
    const std::string path = *file ? (*file)->path() : std::string();
    file->reset();  // some systems remove no file that is open
    if (!path.empty()) removed(path);
  }
  if (!removed(newName(target_.specification)) || !foldersAreFlushed()) return;
  removed(newName(target_.values));
  removed(oldName(target_.values));
}

bool FilePair::removed(const std::string& path) {
  FileFacts facts;
  const bool isMissing = queryFile(path, LastLink::Keep, facts) && facts.kind == FileKind::Missing;
  return isMissing || steps_.remove(path);
}

void FilePair::remove(const std::string& path) {
  if (!removed(path)) throw fileError(errno, path);
}

void FilePair::move(const std::string& path, const std::string& target) {
  if (!steps_.replace(path, target)) throw fileError(errno, target);
}

bool FilePair::foldersAreFlushed() {
  const std::string folder = folderOf(target_.values);
  const std::string secondFolder = folderOf(target_.specification);
  return steps_.flushFolder(folder) && (secondFolder == folder || steps_.flushFolder(secondFolder));
}

void FilePair::flushFolders() {
  if (!foldersAreFlushed()) throw fileError(errno, target_.values);
}

}  // namespace tavimor
