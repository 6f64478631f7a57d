#pragma once

namespace tavimor {

/// While it lives, which is while the application is made, a toolkit that finds no display ends the program with one
/// line on standard error and status 1, instead of several lines and a signal.
class DisplayCheck {
 public:
  DisplayCheck();
  DisplayCheck(const DisplayCheck&) = delete;
  DisplayCheck& operator=(const DisplayCheck&) = delete;
  ~DisplayCheck();
};

}  // namespace tavimor
