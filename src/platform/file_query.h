#pragma once

#include <cstdint>
#include <cstdio>
#include <string>

namespace tavimor {

enum class FileKind { Missing, Regular, Link, Other };

/// Whether a link is taken for what it leads to, or for itself.
enum class LastLink { Follow, Keep };

/// What the system tells of a file. Device and number together are the file itself, whatever its names.
struct FileFacts {
  FileKind kind = FileKind::Missing;
  std::uint64_t device = 0;
  std::uint64_t number = 0;
  std::uint64_t names = 0;
  std::uint64_t size = 0;

  bool isSameFileAs(const FileFacts& other) const {
    return kind != FileKind::Missing && kind == other.kind && device == other.device && number == other.number;
  }
};

/// Asks what stands at a path, or what an open file is. That nothing stands there is an answer as well.
/// Errors: false where the system does not tell, and errno says why.
bool queryFile(const std::string& path, LastLink lastLink, FileFacts& facts);
bool queryFile(std::FILE* file, FileFacts& facts);

}  // namespace tavimor
