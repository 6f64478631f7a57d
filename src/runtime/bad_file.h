#pragma once

#include <string>

#include "runtime/failure.h"

namespace tavimor {

/// A file whose content is not what its reader needs: where, what was expected there and what stands there.
struct BadFile : Failure {
  BadFile(std::string filePath, long lineNumber, std::string expectedItem, std::string foundItem);

  long line;  // counted from 1
  std::string expected;
  std::string found;

  std::string heading() const override { return "line " + std::to_string(line); }

  /// "expected ..., found ..."
  const char* what() const noexcept override { return reason_.c_str(); }

 private:
  std::string reason_;
};

}  // namespace tavimor
