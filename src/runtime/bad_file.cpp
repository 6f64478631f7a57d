#include "runtime/bad_file.h"

#include <utility>

namespace tavimor {

BadFile::BadFile(std::string filePath, long lineNumber, std::string expectedItem, std::string foundItem)
    : Failure(std::move(filePath)),
      line(lineNumber),
      expected(std::move(expectedItem)),
      found(std::move(foundItem)),
      reason_("expected " + expected + ", found " + found) {}

}  // namespace tavimor
