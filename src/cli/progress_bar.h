#pragma once

#include <chrono>

namespace tavimor {

/// A bar on standard error for work that lasts; nothing where standard error is no terminal.
class ProgressBar {
 public:
  ProgressBar();
  ProgressBar(const ProgressBar&) = delete;
  ProgressBar& operator=(const ProgressBar&) = delete;
  ~ProgressBar();

  void show(double share);

 private:
  using Clock = std::chrono::steady_clock;

  bool visible_;
  Clock::time_point nextUpdate_;
  bool drawn_ = false;
};

}  // namespace tavimor
