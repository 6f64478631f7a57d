#pragma once

#include <cstdint>
#include <memory>
#include <mutex>
#include <string>

#include "formats/restore/kept_problem.h"
#include "platform/file_lock.h"
#include "runtime/file_steps.h"

namespace tavimor {

/// How a session that has left an unsaved problem came to its end. Closed, ToldToEnd (from outside: a log-off, for
/// instance), RunTimeError and Crashed it has said itself. One that could say nothing was killed, or met what it could
/// not even note, where the system has run on since; where the system was started anew since, that may have been the
/// reason or not; Unknown where the system cannot tell one from the other.
enum class SessionEnd { Unknown, Killed, SystemRestarted, Crashed, RunTimeError, ToldToEnd, Closed };

/// The place of a living session in the user's state folder:
///
///   sessions/NAME.lock       held as long as the session lives (see FileLock): one that nobody holds is of a dead one
///   sessions/NAME/N          the unsaved problem, complete; the highest N is the one that holds (see writeKept)
///   sessions/NAME/new        the next one while it is written
///   sessions/NAME/replaced   a pair on its way to the replaced ones (see ReplacedPair)
///   sessions/NAME/end        how the session has ended, where that could be said: a line of noteOf
///
/// Nothing is made before there is something to keep. Folders and files are their owner's alone; links are not
/// followed, and what is another user's is refused. May be used from several threads. Errors: a RunTimeError with the
/// path; what was kept before is still there then.
class KeptSession {
 public:
  explicit KeptSession(std::string stateFolder, FileSteps& steps = systemFileSteps());
  KeptSession(const KeptSession&) = delete;
  KeptSession& operator=(const KeptSession&) = delete;

  /// The session is over: what it has kept stays, if anything is, and may be restored.
  ~KeptSession();

  /// Keeps the problem in the place of the last one, in one step.
  void keep(const SessionProblem& problem);

  /// There is nothing to restore any more: the problem was saved.
  void forget();

  /// Says how the session ends, in the words of noteOf.
  void noteEnd(SessionEnd end);

  bool hasKept() const;

  /// The session's folder, made where it is missing.
  std::string folder();

  const std::string& stateFolder() const { return stateFolder_; }
  FileSteps& steps() const { return steps_; }

 private:
  void lockOwnName();

  const std::string stateFolder_;
  FileSteps& steps_;
  mutable std::mutex mutex_;
  std::unique_ptr<FileLock> lock_;
  std::string folder_;
  std::uint64_t number_ = 0;  // of the problem that is kept; 0 where none is
  std::uint64_t lastNumber_ = 0;
};

/// The folder below the state folder that sessions stand in.
std::string sessionsFolder(const std::string& stateFolder);

/// The lock of the session whose folder this is.
std::string sessionLock(const std::string& sessionFolder);

/// The line with which a session says how it ends; empty for an end that no session can tell of.
std::string noteOf(SessionEnd end);

/// How the session of this folder has ended. `systemRun` is the run of the system that it has kept its problem in.
SessionEnd sessionEnd(const std::string& sessionFolder, const std::string& systemRun);

/// Makes a private folder. Errors: a RunTimeError with the path.
void requirePrivateFolder(const std::string& path);

/// Removes a folder of our own with all that is in it. What is refused stays, and nobody is told.
void removeFolder(const std::string& path);

/// Seconds since the beginning of 1970, universal time.
std::int64_t secondsNow();

}  // namespace tavimor
