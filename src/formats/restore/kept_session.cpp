#include "formats/restore/kept_session.h"

#include <cerrno>
#include <chrono>
#include <filesystem>

#include "formats/replaced_file.h"
#include "formats/whole_text.h"
#include "formats/work_names.h"
#include "platform/crash_note.h"
#include "platform/private_folder.h"
#include "platform/system_run.h"
#include "runtime/run_time_error.h"

namespace tavimor {

namespace fs = std::filesystem;

namespace {

constexpr const char* kEnd = "/end";

void putInPlace(const std::string& folder, const std::string& place, FileSteps& steps) {
  if (!steps.replace(folder, place)) throw fileError(errno, place);
  steps.flushFolder(folderOf(place));
}

std::string noteIn(const std::string& sessionFolder) {
  try {
    return wholeText(sessionFolder + kEnd);
  } catch (const RunTimeError&) {
    return {};
  }
}

}  // namespace

std::string sessionsFolder(const std::string& stateFolder) { return stateFolder + "/sessions"; }

std::string sessionLock(const std::string& sessionFolder) { return sessionFolder + ".lock"; }

std::string noteOf(SessionEnd end) {
  switch (end) {
    case SessionEnd::Closed: return "closed\n";
    case SessionEnd::ToldToEnd: return "told to end\n";
    case SessionEnd::RunTimeError: return "run-time error\n";
    case SessionEnd::Crashed: return kCrashNote;
    case SessionEnd::Unknown:
    case SessionEnd::Killed:
    case SessionEnd::SystemRestarted: break;
  }
  return {};
}

SessionEnd sessionEnd(const std::string& sessionFolder, const std::string& systemRun) {
  const std::string note = noteIn(sessionFolder);
  for (const SessionEnd end :
       {SessionEnd::Closed, SessionEnd::ToldToEnd, SessionEnd::RunTimeError, SessionEnd::Crashed})
    if (note == noteOf(end)) return end;
  const std::string now = tavimor::systemRun();
  if (systemRun.empty() || now.empty()) return SessionEnd::Unknown;
  return systemRun == now ? SessionEnd::Killed : SessionEnd::SystemRestarted;
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
  if (lock_ == nullptr) return;
  setCrashNote({});
  if (number_ == 0) removeFolder(folder_);
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
    setCrashNote(folder_ + kEnd);
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
  if (!hasKept()) return;
  const std::string path = folder() + kEnd;
  steps_.remove(path);
  FileHandle file = steps_.create(path, Access::Private);
  if (!file || !steps_.write(file.get(), noteOf(end)) || !steps_.flush(file.get()) || !steps_.close(std::move(file)))
    throw fileError(errno, path);
}

}  // namespace tavimor
