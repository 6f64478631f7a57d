#pragma once

#include <cstdint>
#include <string>
#include <utility>

#include "platform/files.h"

namespace tavimor {

/// A lock that is a file: it is held by whoever made the file and has the system's lock on it. That dies with its
/// holder, so that the file of a program that was killed is in nobody's way. Where the file system knows no locks,
/// nobody ever is.
///
/// A file that stands there already is never written to, and a link never followed: it goes, and a new file is made.
class FileLock {
 public:
  enum class Attempt { Acquired, InTheWay, Refused };

  /// `access` is who may see the file. Others' programs are kept away where they can open it only.
  explicit FileLock(std::string path, Access access = Access::Usual) : path_(std::move(path)), access_(access) {}
  FileLock(const FileLock&) = delete;
  FileLock& operator=(const FileLock&) = delete;
  ~FileLock() { release(); }

  /// Tries, without waiting. Errors: Refused, and errno says why.
  Attempt tryAcquire();

  /// Removes the file, so that nothing is left of the lock.
  void release();

  const std::string& path() const { return path_; }

  /// Who was in the way at the last attempt: "process 4711 on hilbert", or "another program".
  const std::string& holder() const { return holder_; }

 private:
  std::string path_;
  Access access_;
  std::intptr_t handle_ = -1;
  std::string holder_;
};

}  // namespace tavimor
