#pragma once

#include <cerrno>
#include <cstdlib>
#include <map>
#include <string>
#include <string_view>
#include <utility>

#ifdef _WIN32
#include <windows.h>
#endif

#include "runtime/file_steps.h"

namespace tavimor::test {

constexpr int kKilled = 77;

/// Ends the process without any of its own work at an end.
[[noreturn]] inline void endAtOnce() {
#ifdef _WIN32
  TerminateProcess(GetCurrentProcess(), kKilled);
#endif
  std::_Exit(kKilled);
}

enum class Fault { None, Refused, Killed };

/// The steps of writing files, counted from 1, with a fault at chosen ones: the step is refused and nothing is done,
/// or the process ends there at once. A refused or killed writing leaves half of its bytes. Nothing waits for the disk:
/// without a fault these are the quick steps for tests that save often.
class FaultySteps : public FileSteps {
 public:
  FaultySteps() = default;
  explicit FaultySteps(std::map<int, Fault> faults) : faults_(std::move(faults)) {}

  int count() const { return count_; }

  FileHandle create(const std::string& path, Access access) override {
    return passes() ? FileSteps::create(path, access) : nullptr;
  }
  bool write(std::FILE* file, std::string_view bytes) override {
    if (comes() != Fault::None) FileSteps::write(file, bytes.substr(0, bytes.size() / 2));
    return passes() && FileSteps::write(file, bytes);
  }
  bool flush(std::FILE*) override { return passes(); }
  bool close(FileHandle file) override { return passes() && FileSteps::close(std::move(file)); }
  bool takeAttributes(std::FILE* file, const std::string& path) override {
    return passes() && FileSteps::takeAttributes(file, path);
  }
  bool flushFolder(const std::string&) override { return passes(); }
  bool keepAs(const std::string& path, const std::string& secondName) override {
    return passes() && FileSteps::keepAs(path, secondName);
  }
  bool replace(const std::string& path, const std::string& target) override {
    return passes() && FileSteps::replace(path, target);
  }
  bool remove(const std::string& path) override { return passes() && FileSteps::remove(path); }

 private:
  Fault comes() const {
    const auto fault = faults_.find(count_ + 1);
    return fault == faults_.end() ? Fault::None : fault->second;
  }

  bool passes() {
    const Fault fault = comes();
    ++count_;
    if (fault == Fault::Killed) endAtOnce();
    if (fault == Fault::Refused) errno = ENOSPC;
    return fault == Fault::None;
  }

  std::map<int, Fault> faults_;
  int count_ = 0;
};

}  // namespace tavimor::test
