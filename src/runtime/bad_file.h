#pragma once

#include <exception>
#include <string>

namespace tavimor {

/// A file whose content is not what its reader needs: where, what was expected there and what stands there.
struct BadFile : std::exception {
  BadFile(std::string filePath, long lineNumber, std::string expectedItem, std::string foundItem);

  std::string path;
  long line;  // counted from 1
  std::string expected;
  std::string found;

  /// "line N: expected ..., found ..."
  const char* what() const noexcept override { return reason_.c_str(); }

 private:
  std::string reason_;
};

}  // namespace tavimor
