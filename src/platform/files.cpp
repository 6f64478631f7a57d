#include "platform/files.h"

#ifdef _WIN32
#include <io.h>
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

std::filesystem::path nativePath(const std::string& path) { return std::u8string(path.begin(), path.end()); }

std::string utf8Path(const std::filesystem::path& path) {
  const std::u8string text = path.u8string();
  return std::string(text.begin(), text.end());
}

FileHandle openFile(const std::string& path, const char* mode) {
  const std::wstring wideMode(mode, mode + std::string(mode).size());
  return FileHandle(openUnbuffered(_wfopen(nativePath(path).c_str(), wideMode.c_str())));
}

bool flushToDisk(std::FILE* file) { return std::fflush(file) == 0 && _commit(_fileno(file)) == 0; }

bool flushFolderToDisk(const std::string&) { return true; }

#else

std::filesystem::path nativePath(const std::string& path) { return path; }

std::string utf8Path(const std::filesystem::path& path) { return path.string(); }

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
