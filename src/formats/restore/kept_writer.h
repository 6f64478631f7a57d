#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <thread>

#include "formats/restore/kept_session.h"

namespace tavimor {

/// Writes what a session keeps in a thread of its own, so that nobody waits for the disk. What is handed over while it
/// writes takes the place of what waits: the latest is the one that counts.
class KeptWriter {
 public:
  using Clock = std::chrono::steady_clock;

  explicit KeptWriter(const std::string& stateFolder, FileSteps& steps = systemFileSteps());
  KeptWriter(const KeptWriter&) = delete;
  KeptWriter& operator=(const KeptWriter&) = delete;

  /// Waits for what was handed over.
  ~KeptWriter();

  /// Nobody may change the problem any more.
  void keep(std::shared_ptr<const SessionProblem> problem);
  void forget();

  /// Waits for what was handed over and says how the session ends.
  void end(SessionEnd end);

  bool isIdle() const;
  bool hasKept() const { return session_.hasKept(); }

  /// How long the last writing took; 0 before the first.
  Clock::duration lastDuration() const;

  /// What was refused since the last question, in words.
  std::optional<std::string> takeFailure();

  KeptSession& session() { return session_; }

 private:
  using Job = std::function<void()>;

  void handOver(Job job);
  void work();
  void perform(const Job& job);

  KeptSession session_;
  mutable std::mutex mutex_;
  std::condition_variable changed_;
  Job next_;
  bool isWorking_ = false;
  bool isOver_ = false;
  Clock::duration lastDuration_{};
  std::optional<std::string> failure_;
  std::thread thread_;  // begins with the first job
};

}  // namespace tavimor
