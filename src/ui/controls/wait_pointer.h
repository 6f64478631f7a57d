#pragma once

namespace tavimor {

/// The hourglass pointer while the object lives.
class WaitPointer {
 public:
  WaitPointer();
  WaitPointer(const WaitPointer&) = delete;
  WaitPointer& operator=(const WaitPointer&) = delete;
  ~WaitPointer();
};

}  // namespace tavimor
