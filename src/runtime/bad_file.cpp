#include "runtime/bad_file.h"

#include <utility>

namespace tavimor {

BadFile::BadFile(std::string filePath, long lineNumber, std::string expectedItem, std::string foundItem)
    : BadFile(std::move(filePath), "line " + std::to_string(lineNumber), std::move(expectedItem),
              std::move(foundItem)) {}

BadFile::BadFile(std::string filePath, std::string placeName, std::string expectedItem, std::string foundItem)
    : Failure(std::move(filePath)),
      place(std::move(placeName)),
      expected(std::move(expectedItem)),
      found(std::move(foundItem)),
      reason_("expected " + expected + ", found " + found) {}

}  // namespace tavimor
