#pragma once

#include <cstdio>
#include <memory>
#include <string>

namespace tavimor {

struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using FileHandle = std::unique_ptr<std::FILE, CloseFile>;

/// Opens a file whose path is UTF-8, without a buffer of the library's own: the callers bring theirs.
/// Errors: null, and errno says why.
FileHandle openFile(const std::string& path, const char* mode);

/// Asks the system to put what was written on the disk: without it, a rename can reach the disk before the data do.
/// Errors: false, and errno says why.
bool flushToDisk(std::FILE* file);

/// The same for the names in a folder. Systems that need no such thing, or offer none, succeed.
bool flushFolderToDisk(const std::string& folder);

}  // namespace tavimor
