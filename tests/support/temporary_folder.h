#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <random>
#include <string>

#include "platform/files.h"

namespace tavimor::test {

/// An empty folder of its own, gone with everything in it when the object goes.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::random_device random;
    do path_ = std::filesystem::temp_directory_path() / ("tavimor-" + std::to_string(random()));
    while (!std::filesystem::create_directory(path_));
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  std::string path() const { return utf8Path(path_); }

  /// The path of a file in the folder.
  std::string operator/(const std::string& name) const { return utf8Path(path_ / nativePath(name)); }

 private:
  std::filesystem::path path_;
};

/// A fixture for tests that need files.
class FolderTest : public testing::Test {
 protected:
  TemporaryFolder folder;
};

}  // namespace tavimor::test
