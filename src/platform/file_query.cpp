#include "platform/file_query.h"

#include <cerrno>

#ifdef _WIN32
#include <io.h>
#include <windows.h>

#include "platform/device_name.h"
#include "platform/files.h"
#include "platform/windows_error.h"
#else
#include <sys/stat.h>
#endif

namespace tavimor {

#ifdef _WIN32

namespace {

std::uint64_t joined(DWORD high, DWORD low) { return (std::uint64_t{high} << 32) | low; }

FileKind kindOf(DWORD attributes) {
  if ((attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0) return FileKind::Link;
  return (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0 ? FileKind::Other : FileKind::Regular;
}

bool query(HANDLE handle, FileFacts& facts) {
  facts = {};
  facts.kind = FileKind::Other;
  if (GetFileType(handle) != FILE_TYPE_DISK) return true;
  BY_HANDLE_FILE_INFORMATION information;
  if (!GetFileInformationByHandle(handle, &information)) {
    errno = errnoOf(GetLastError());
    return false;
  }
  facts = {kindOf(information.dwFileAttributes), information.dwVolumeSerialNumber,
           joined(information.nFileIndexHigh, information.nFileIndexLow), information.nNumberOfLinks,
           joined(information.nFileSizeHigh, information.nFileSizeLow)};
  return true;
}

}  // namespace

bool queryFile(const std::string& path, LastLink lastLink, FileFacts& facts) {
  facts = {};
  if (isDeviceName(path)) {
    facts.kind = FileKind::Other;
    return true;
  }
  const DWORD reparse = lastLink == LastLink::Keep ? FILE_FLAG_OPEN_REPARSE_POINT : 0;
  const HANDLE handle = CreateFileW(nativePath(path).c_str(), FILE_READ_ATTRIBUTES,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                                    FILE_FLAG_BACKUP_SEMANTICS | reparse, nullptr);
  if (handle == INVALID_HANDLE_VALUE) {
    errno = errnoOf(GetLastError());
    // What can be the name of no file is nobody's.
    return errno == ENOENT || errno == EINVAL || errno == ENAMETOOLONG;
  }
  const bool told = query(handle, facts);
  CloseHandle(handle);
  return told;
}

bool queryFile(std::FILE* file, FileFacts& facts) {
  return query(reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(file))), facts);
}

#else

namespace {

FileKind kindOf(mode_t mode) {
  if (S_ISREG(mode)) return FileKind::Regular;
  return S_ISLNK(mode) ? FileKind::Link : FileKind::Other;
}

FileFacts factsFrom(const struct stat& status) {
  return {kindOf(status.st_mode), status.st_dev, status.st_ino, status.st_nlink,
          static_cast<std::uint64_t>(status.st_size)};
}

}  // namespace

bool queryFile(const std::string& path, LastLink lastLink, FileFacts& facts) {
  facts = {};
  struct stat status = {};
  const int refused = lastLink == LastLink::Keep ? lstat(path.c_str(), &status) : stat(path.c_str(), &status);
  // A name that is too long for the file system is nobody's.
  if (refused != 0) return errno == ENOENT || errno == ENOTDIR || errno == ENAMETOOLONG;
  facts = factsFrom(status);
  return true;
}

bool queryFile(std::FILE* file, FileFacts& facts) {
  struct stat status = {};
  if (fstat(fileno(file), &status) != 0) return false;
  facts = factsFrom(status);
  return true;
}

#endif

}  // namespace tavimor
