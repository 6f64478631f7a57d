#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>

namespace tavimor {

/// Reads standard input line by line, taking what has come instead of waiting for more.
class InputLines {
 public:
  /// A line has fewer bytes than this: one that reaches them is given without its end, and must be refused. No list of
  /// numbers is that long, and without a bound a file that has no line ends would fill the memory.
  static constexpr std::size_t kLongestLine = std::size_t{64} * 1024;

  /// Calls `beforeWaiting` whenever it has no whole line left and asks the system for more.
  explicit InputLines(std::function<void()> beforeWaiting);

  /// The next line without its LF; nothing at the end. The last line needs no LF.
  /// Errors: a RunTimeError where the system refuses to read.
  std::optional<std::string> next();

 private:
  bool readMore();
  std::string take(std::size_t length, std::size_t separator);

  std::function<void()> beforeWaiting_;
  std::string pending_;
  std::size_t at_ = 0;  // where in it the next line begins
};

}  // namespace tavimor
