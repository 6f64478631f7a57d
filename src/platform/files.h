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

/// Who may see a file that is made: its owner alone, or whom the user's habits (the umask) let see it.
enum class Access { Private, Usual };

/// Makes a file and opens it for writing. Whatever stands there already, a link included, is never written to.
/// No buffer of the library's own: the callers bring theirs.
/// Errors: null, and errno says why: EEXIST where something stands there.
FileHandle createFile(const std::string& path, Access access);

/// Opens a file for reading, without such a buffer and without waiting for anybody (as at a pipe).
/// Errors: null, and errno says why.
FileHandle openForReading(const std::string& path);

/// Whether the user may write to a file that is there. Writes nothing.
/// Errors: false, and errno says why.
bool mayBeWritten(const std::string& path);

/// Asks the system to put what was written on the disk: without it, a rename can reach the disk before the data do.
/// Errors: false, and errno says why.
bool flushToDisk(std::FILE* file);

/// The same for the names in a folder. Systems that need no such thing, or offer none, succeed.
bool flushFolderToDisk(const std::string& folder);

}  // namespace tavimor
