#pragma once

#include <string>

#include "runtime/failure.h"

namespace tavimor {

/// A file whose content is not what its reader needs: where, what was expected there and what stands there.
struct BadFile : Failure {
  BadFile(std::string filePath, long lineNumber, std::string expectedItem, std::string foundItem);

  /// For files whose places have names: "variables[1].degree".
  BadFile(std::string filePath, std::string placeName, std::string expectedItem, std::string foundItem);

  std::string place;  // "line 3", or its name
  std::string expected;
  std::string found;

  std::string heading() const override { return place; }

  /// "expected ..., found ..."
  const char* what() const noexcept override { return reason_.c_str(); }

 private:
  std::string reason_;
};

}  // namespace tavimor
