#include "platform/file_attributes.h"

#ifndef _WIN32
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#endif

#ifdef __linux__
#include <sys/xattr.h>

#include <algorithm>
#include <string_view>
#include <vector>
#endif

namespace tavimor {

#ifdef _WIN32

bool takeAttributes(std::FILE*, const std::string&) { return true; }  // a new file has its folder's

#else

namespace {

#ifdef __linux__

// Measurements of the content, which is another one now.
bool isOfContent(std::string_view name) { return name == "security.ima" || name == "security.evm"; }

void takeExtendedAttribute(int file, const std::string& path, const char* name) {
  const ssize_t size = lgetxattr(path.c_str(), name, nullptr, 0);
  if (size < 0) return;
  std::vector<char> value(static_cast<std::size_t>(size));
  const ssize_t got = lgetxattr(path.c_str(), name, value.data(), value.size());
  if (got >= 0) fsetxattr(file, name, value.data(), static_cast<std::size_t>(got), 0);
}

void takeExtendedAttributes(int file, const std::string& path) {
  const ssize_t size = llistxattr(path.c_str(), nullptr, 0);
  if (size <= 0) return;
  std::vector<char> names(static_cast<std::size_t>(size));
  const ssize_t got = llistxattr(path.c_str(), names.data(), names.size());
  if (got <= 0) return;
  std::string_view rest(names.data(), static_cast<std::size_t>(got));
  while (!rest.empty()) {
    const std::string name(rest.substr(0, rest.find('\0')));
    if (!isOfContent(name)) takeExtendedAttribute(file, path, name.c_str());
    rest.remove_prefix(std::min(rest.size(), name.size() + 1));
  }
}

#else

void takeExtendedAttributes(int, const std::string&) {}

#endif

// Root keeps both, a member of the group the group. What neither may be kept stays the user's own.
bool takeOwner(int file, const struct stat& original) {
  if (fchown(file, original.st_uid, original.st_gid) == 0) return true;
  constexpr uid_t same = static_cast<uid_t>(-1);
  [[maybe_unused]] const int refused = fchown(file, same, original.st_gid);
  return false;
}

// Where a file system has one mode for all files, it may refuse to set even that.
bool setMode(int file, mode_t mode) {
  if (fchmod(file, mode) == 0) return true;
  const int refusal = errno;
  struct stat status = {};
  if (fstat(file, &status) == 0 && (status.st_mode & 07777) == mode) return true;
  errno = refusal;
  return false;
}

}  // namespace

bool takeAttributes(std::FILE* file, const std::string& path) {
  struct stat original = {};
  if (lstat(path.c_str(), &original) != 0) return errno == ENOENT || errno == ENOTDIR;
  const int descriptor = fileno(file);
  // To run with the rights of an owner is for the file of that owner only.
  const mode_t kept = takeOwner(descriptor, original) ? 07777 : 0777;
  takeExtendedAttributes(descriptor, path);
  return setMode(descriptor, original.st_mode & kept);
}

#endif

}  // namespace tavimor
