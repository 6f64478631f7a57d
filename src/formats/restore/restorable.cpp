#include "formats/restore/restorable.h"

#include <algorithm>
#include <filesystem>
#include <functional>
#include <optional>
#include <set>
#include <tuple>

#include "formats/replaced_file.h"
#include "formats/restore/replaced_pair.h"
#include "platform/files.h"
#include "platform/private_folder.h"
#include "runtime/failure.h"

namespace tavimor {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kMostUnsaved = 50;  // who always closes without saving shall not fill the disk

std::string within(const std::string& folder, const std::string& name) { return folder + '/' + name; }

std::vector<std::string> namesIn(const std::string& folder) {
  std::vector<std::string> names;
  if (!isOwnFolder(folder)) return names;
  std::error_code error;
  for (fs::directory_iterator entry(nativePath(folder), error), end; !error && entry != end; entry.increment(error))
    names.push_back(utf8Path(entry->path().filename()));
  return names;
}

std::optional<Restorable> restorableIn(const std::string& folder, KeptKind kind) {
  if (!isOwnFolder(folder)) return std::nullopt;
  try {
    return Restorable{kind, folder, readDescription(folder), SessionEnd::Unknown};
  } catch (const Failure&) {
    return std::nullopt;
  }
}

bool isNumber(const std::string& name) { return name.find_first_not_of("0123456789") == std::string::npos; }

// What a session left unsaved: the highest number that is whole.
std::optional<Restorable> leftBy(const std::string& session) {
  std::vector<std::string> names = namesIn(session);
  std::erase_if(names, [](const std::string& name) { return !isNumber(name); });
  std::sort(names.begin(), names.end(), [](const std::string& a, const std::string& b) {
    return std::make_tuple(a.size(), a) > std::make_tuple(b.size(), b);
  });
  for (const std::string& name : names)
    if (auto left = restorableIn(within(session, name), KeptKind::Unsaved)) {
      left->end = sessionEnd(session, left->description.systemRun);
      return left;
    }
  return std::nullopt;
}

// The folders of sessions, also of those that have only a lock left.
std::set<std::string> sessionsIn(const std::string& folder) {
  const std::string lock = sessionLock("");
  std::set<std::string> sessions;
  for (const std::string& name : namesIn(folder))
    sessions.insert(folder + '/' + (name.ends_with(lock) ? name.substr(0, name.size() - lock.size()) : name));
  return sessions;
}

void forEachDeadSession(const std::string& stateFolder, const std::function<void(const std::string&)>& visit) {
  for (const std::string& session : sessionsIn(sessionsFolder(stateFolder))) {
    FileLock lock(sessionLock(session), Access::Private);
    if (lock.tryAcquire() == FileLock::Attempt::Acquired) visit(session);
  }
}

std::vector<Restorable> unsavedProblems(const std::string& stateFolder) {
  std::vector<Restorable> all;
  forEachDeadSession(stateFolder, [&](const std::string& session) {
    if (auto left = leftBy(session))
      all.push_back(*left);
    else
      removeFolder(session);
  });
  std::sort(all.begin(), all.end(),
            [](const Restorable& a, const Restorable& b) { return a.description.when > b.description.when; });
  for (std::size_t n = kMostUnsaved; n < all.size(); ++n) removeRestorable(all[n]);
  all.resize(std::min(all.size(), kMostUnsaved));
  return all;
}

std::vector<Restorable> replacedPairs(const std::string& stateFolder) {
  std::vector<Restorable> all;
  const std::string replaced = replacedFolder(stateFolder);
  for (const std::string& file : namesIn(replaced)) {
    const std::string ofFile = within(replaced, file);
    for (const std::string& time : namesIn(ofFile))
      if (auto pair = restorableIn(within(ofFile, time), KeptKind::Replaced)) all.push_back(*pair);
  }
  std::sort(all.begin(), all.end(), [](const Restorable& a, const Restorable& b) {
    return a.description.file != b.description.file ? a.description.file < b.description.file : a.folder > b.folder;
  });
  return all;
}

}  // namespace

std::vector<Restorable> restorableProblems(const std::string& stateFolder) {
  std::vector<Restorable> all = unsavedProblems(stateFolder);
  for (Restorable& pair : replacedPairs(stateFolder)) all.push_back(std::move(pair));
  return all;
}

bool hasUnsavedProblems(const std::string& stateFolder) { return !unsavedProblems(stateFolder).empty(); }

// A session's folder goes as a whole: it may hold an earlier problem yet.
void removeRestorable(const Restorable& restorable) {
  removeFolder(restorable.kind == KeptKind::Unsaved ? folderOf(restorable.folder) : restorable.folder);
}

}  // namespace tavimor
