#include "platform/files.h"

#ifdef _WIN32
#include <io.h>

#include <filesystem>
#else
#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#endif

namespace tavimor {

namespace {

std::FILE* openUnbuffered(std::FILE* file) {
  if (file != nullptr) std::setvbuf(file, nullptr, _IONBF, 0);
  return file;
}

}  // namespace

#ifdef _WIN32

FileHandle openFile(const std::string& path, const char* mode) {
  const std::filesystem::path name = std::filesystem::u8path(path);
  const std::wstring wideMode(mode, mode + std::string(mode).size());
  return FileHandle(openUnbuffered(_wfopen(name.c_str(), wideMode.c_str())));
}

bool flushToDisk(std::FILE* file) { return std::fflush(file) == 0 && _commit(_fileno(file)) == 0; }

bool flushFolderToDisk(const std::string&) { return true; }

#else

FileHandle openFile(const std::string& path, const char* mode) {
  return FileHandle(openUnbuffered(std::fopen(path.c_str(), mode)));
}

bool flushToDisk(std::FILE* file) { return std::fflush(file) == 0 && fsync(fileno(file)) == 0; }

bool flushFolderToDisk(const std::string& folder) {
  const int descriptor = open(folder.c_str(), O_RDONLY | O_CLOEXEC);
  if (descriptor < 0) return true;  // a folder that may be written but not read: nothing can be asked for
  const bool flushed = fsync(descriptor) == 0 || errno == EINVAL;
  close(descriptor);
  return flushed;
}

#endif

}  // namespace tavimor
