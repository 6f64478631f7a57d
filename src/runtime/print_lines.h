#pragma once

#include <cstddef>
#include <vector>

namespace tavimor {

/// Reads lines that hold one number each, exactly as OutputFile prints them.
class PrintLines {
 public:
  /// Reads the lines from `first` on, `most` of them at most; numbers() are their values then. Returns the place behind
  /// the last one: before the first line of any other form and before one that `last` cuts off.
  /// A text that is long enough is read by two threads, a half each.
  const char* read(const char* first, const char* last, std::size_t most);

  const std::vector<double>& numbers() const { return numbers_; }

 private:
  const char* readHalves(const char* first, const char* last, std::size_t most);

  std::vector<double> numbers_;
  std::vector<double> secondHalf_;  // kept, so that its memory serves again
};

}  // namespace tavimor
