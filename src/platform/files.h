#pragma once

#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>

namespace tavimor {

/// The program's paths are UTF-8 on every system; the functions of std::filesystem take and give the system's.
std::filesystem::path nativePath(const std::string& path);
std::string utf8Path(const std::filesystem::path& path);

struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using FileHandle = std::unique_ptr<std::FILE, CloseFile>;

/// Opens a file without a buffer of the library's own: the callers bring theirs.
/// Errors: null, and errno says why.
FileHandle openFile(const std::string& path, const char* mode);

/// Asks the system to put what was written on the disk: without it, a rename can reach the disk before the data do.
/// Errors: false, and errno says why.
bool flushToDisk(std::FILE* file);

/// The same for the names in a folder. Systems that need no such thing, or offer none, succeed.
bool flushFolderToDisk(const std::string& folder);

}  // namespace tavimor
