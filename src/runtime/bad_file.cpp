#include "runtime/bad_file.h"

#include <utility>

namespace tavimor {

BadFile::BadFile(std::string filePath, long lineNumber, std::string expectedItem, std::string foundItem)
    : path(std::move(filePath)), line(lineNumber), expected(std::move(expectedItem)), found(std::move(foundItem)) {
  reason_ = "line " + std::to_string(line) + ": expected " + expected + ", found " + found;
}

}  // namespace tavimor
