#include "formats/restore/kept_session.h"

#include <cerrno>
#include <chrono>
#include <filesystem>

#include "formats/replaced_file.h"
#include "formats/whole_text.h"
#include "formats/work_names.h"
#include "platform/private_folder.h"
#include "runtime/run_time_error.h"

namespace tavimor {

namespace fs = std::filesystem;

namespace {

constexpr const char* kEnd = "/end";
constexpr const char* kClosed = "closed\n";
constexpr const char* kRunTimeError = "run-time error\n";

void putInPlace(const std::string& folder, const std::string& place, FileSteps& steps) {
  if (!steps.replace(folder, place)) throw fileError(errno, place);
  steps.flushFolder(folderOf(place));
}

}  // namespace

std::string sessionsFolder(const std::string& stateFolder) { return stateFolder + "/sessions"; }

std::string sessionLock(const std::string& sessionFolder) { return sessionFolder + ".lock"; }

SessionEnd sessionEnd(const std::string& sessionFolder) {
  try {
    const std::string text = wholeText(sessionFolder + kEnd);
    if (text == kClosed) return SessionEnd::Closed;
    return text == kRunTimeError ? SessionEnd::RunTimeError : SessionEnd::CutShort;
  } catch (const RunTimeError&) {
    return SessionEnd::CutShort;
  }
}

void requirePrivateFolder(const std::string& path) {
  if (!makePrivateFolder(path)) throw fileError(errno, path);
}

void removeFolder(const std::string& path) {
  std::error_code ignored;
  if (isOwnFolder(path)) fs::remove_all(nativePath(path), ignored);
}

std::int64_t secondsNow() {
  using namespace std::chrono;
  return duration_cast<seconds>(system_clock::now().time_since_epoch()).count();
}

KeptSession::KeptSession(std::string stateFolder, FileSteps& steps)
    : stateFolder_(std::move(stateFolder)), steps_(steps) {}

KeptSession::~KeptSession() {
  if (lock_ != nullptr && number_ == 0) removeFolder(folder_);
}

bool KeptSession::hasKept() const {
  const std::lock_guard guard(mutex_);
  return number_ != 0;
}

std::string KeptSession::folder() {
  const std::lock_guard guard(mutex_);
  requirePrivateFolder(stateFolder_);
  requirePrivateFolder(sessionsFolder(stateFolder_));
  if (lock_ == nullptr) lockOwnName();
  requirePrivateFolder(folder_);
  return folder_;
}

// A name that another session has is passed over.
void KeptSession::lockOwnName() {
  for (;;) {
    std::string folder = ownName(sessionsFolder(stateFolder_) + "/session");
    auto lock = std::make_unique<FileLock>(sessionLock(folder), Access::Private);
    switch (lock->tryAcquire()) {
      case FileLock::Attempt::InTheWay: continue;
      case FileLock::Attempt::Refused: throw fileError(errno, lock->path());
      case FileLock::Attempt::Acquired: break;
    }
    folder_ = std::move(folder);
    lock_ = std::move(lock);
    return;
  }
}

void KeptSession::keep(const SessionProblem& problem) {
  const std::string own = folder(), written = own + "/new";
  removeFolder(written);
  requirePrivateFolder(written);
  try {
    writeKept(problem, written, secondsNow(), steps_);
    putInPlace(written, own + '/' + std::to_string(lastNumber_ + 1), steps_);
  } catch (...) {
    removeFolder(written);
    throw;
  }
  const std::lock_guard guard(mutex_);
  if (number_ != 0) removeFolder(own + '/' + std::to_string(number_));
  number_ = ++lastNumber_;
}

void KeptSession::forget() {
  const std::lock_guard guard(mutex_);
  if (number_ != 0) removeFolder(folder_ + '/' + std::to_string(number_));
  number_ = 0;
}

void KeptSession::noteEnd(SessionEnd end) {
  if (!hasKept() || end == SessionEnd::CutShort) return;
  const std::string path = folder() + kEnd;
  steps_.remove(path);
  FileHandle file = steps_.create(path, Access::Private);
  if (!file || !steps_.write(file.get(), end == SessionEnd::Closed ? kClosed : kRunTimeError) ||
      !steps_.flush(file.get()) || !steps_.close(std::move(file)))
    throw fileError(errno, path);
}

}  // namespace tavimor
