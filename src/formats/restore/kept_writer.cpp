#include "formats/restore/kept_writer.h"

#include <exception>
#include <system_error>
#include <utility>

#include "runtime/failure.h"

namespace tavimor {

KeptWriter::KeptWriter(const std::string& stateFolder, FileSteps& steps) : session_(stateFolder, steps) {}

KeptWriter::~KeptWriter() {
  {
    const std::lock_guard guard(mutex_);
    isOver_ = true;
  }
  changed_.notify_all();
  if (thread_.joinable()) thread_.join();
}

void KeptWriter::keep(std::shared_ptr<const SessionProblem> problem) {
  handOver([this, problem = std::move(problem)] { session_.keep(*problem); });
}

void KeptWriter::forget() {
  handOver([this] { session_.forget(); });
}

// Where no thread is to be had the work is done at once.
void KeptWriter::handOver(Job job) {
  {
    const std::lock_guard guard(mutex_);
    next_ = std::move(job);
  }
  changed_.notify_all();
  if (thread_.joinable()) return;
  try {
    thread_ = std::thread([this] { work(); });
  } catch (const std::system_error&) {
    perform(std::exchange(next_, {}));
  }
}

void KeptWriter::work() {
  std::unique_lock lock(mutex_);
  for (;;) {
    changed_.wait(lock, [this] { return next_ || isOver_; });
    if (!next_) return;
    const Job job = std::exchange(next_, {});
    isWorking_ = true;
    lock.unlock();
    perform(job);
    lock.lock();
    isWorking_ = false;
    changed_.notify_all();
  }
}

void KeptWriter::perform(const Job& job) {
  const Clock::time_point begin = Clock::now();
  std::optional<std::string> failure;
  try {
    job();
  } catch (const Failure& refused) {
    failure = refused.path() + ": " + refused.report();
  } catch (const std::exception& error) {  // too little memory, above all: nothing that happens here ends a program
    failure = error.what();
  }
  const std::lock_guard guard(mutex_);
  lastDuration_ = Clock::now() - begin;
  if (failure) failure_ = std::move(failure);
}

void KeptWriter::end(SessionEnd end) {
  {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this] { return !next_ && !isWorking_; });
  }
  perform([&] { session_.noteEnd(end); });
}

bool KeptWriter::isIdle() const {
  const std::lock_guard guard(mutex_);
  return !next_ && !isWorking_;
}

KeptWriter::Clock::duration KeptWriter::lastDuration() const {
  const std::lock_guard guard(mutex_);
  return lastDuration_;
}

std::optional<std::string> KeptWriter::takeFailure() {
  const std::lock_guard guard(mutex_);
  return std::exchange(failure_, std::nullopt);
}

}  // namespace tavimor
