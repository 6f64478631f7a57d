#include "platform/files.h"

#include <cerrno>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>
#include <windows.h>

#include "platform/windows_error.h"
#else
#include <fcntl.h>
#include <unistd.h>
#endif

namespace tavimor {

namespace {

FileHandle unbuffered(std::FILE* file) {
  if (file != nullptr) std::setvbuf(file, nullptr, _IONBF, 0);
  return FileHandle(file);
}

}  // namespace

#ifdef _WIN32

std::filesystem::path nativePath(const std::string& path) { return std::u8string(path.begin(), path.end()); }

std::string utf8Path(const std::filesystem::path& path) {
  const std::u8string text = path.u8string();
  return std::string(text.begin(), text.end());
}

namespace {

FileHandle opened(const std::string& path, int flags, int access, const char* mode) {
  const int descriptor = _wopen(nativePath(path).c_str(), flags | _O_BINARY | _O_NOINHERIT, access);
  return descriptor < 0 ? nullptr : unbuffered(_fdopen(descriptor, mode));
}

}  // namespace

FileHandle createFile(const std::string& path, Access) {
  return opened(path, _O_WRONLY | _O_CREAT | _O_EXCL, _S_IREAD | _S_IWRITE, "wb");
}

// Others may rename and remove the file meanwhile, as they may on other systems.
FileHandle openForReading(const std::string& path) {
  const HANDLE file =
      CreateFileW(nativePath(path).c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                  nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) {
    const DWORD reason = GetLastError();
    const DWORD attributes = GetFileAttributesW(nativePath(path).c_str());
    const bool isFolder = attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    const bool isNoName = reason == ERROR_INVALID_NAME || reason == ERROR_BAD_PATHNAME;  // nothing stands there
    errno = isFolder ? EISDIR : isNoName ? ENOENT : errnoOf(reason);
    return nullptr;
  }
  const int descriptor = _open_osfhandle(reinterpret_cast<std::intptr_t>(file), _O_RDONLY | _O_BINARY);
  return descriptor < 0 ? nullptr : unbuffered(_fdopen(descriptor, "rb"));
}

bool mayBeWritten(const std::string& path) { return opened(path, _O_WRONLY, 0, "wb") != nullptr; }

bool flushToDisk(std::FILE* file) { return std::fflush(file) == 0 && _commit(_fileno(file)) == 0; }

bool flushFolderToDisk(const std::string&) { return true; }

#else

std::filesystem::path nativePath(const std::string& path) { return path; }

std::string utf8Path(const std::filesystem::path& path) { return path.string(); }

namespace {

FileHandle opened(const std::string& path, int flags, mode_t access, const char* mode) {
  const int descriptor = open(path.c_str(), flags | O_CLOEXEC, access);
  if (descriptor < 0) return nullptr;
  FileHandle file = unbuffered(fdopen(descriptor, mode));
  if (file) return file;
  const int refusal = errno;
  close(descriptor);
  if ((flags & O_CREAT) != 0) unlink(path.c_str());
  errno = refusal;
  return nullptr;
}

}  // namespace

FileHandle createFile(const std::string& path, Access access) {
  return opened(path, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, access == Access::Private ? 0600 : 0666, "wb");
}

FileHandle openForReading(const std::string& path) { return opened(path, O_RDONLY | O_NONBLOCK, 0, "rb"); }

bool mayBeWritten(const std::string& path) {
  const int descriptor = open(path.c_str(), O_WRONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
  if (descriptor < 0) return false;
  close(descriptor);
  return true;
}

bool flushToDisk(std::FILE* file) { return std::fflush(file) == 0 && fsync(fileno(file)) == 0; }

bool flushFolderToDisk(const std::string& folder) {
  const int descriptor = open(folder.c_str(), O_RDONLY | O_CLOEXEC);
  if (descriptor < 0) return errno == EACCES;  // a folder that may be written but not read: nothing can be asked for
  const bool flushed = fsync(descriptor) == 0 || errno == EINVAL;
  close(descriptor);
  return flushed;
}

#endif

}  // namespace tavimor
