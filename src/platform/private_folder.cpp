#include "platform/private_folder.h"

#include <cerrno>
#include <filesystem>

#include "platform/files.h"

#ifndef _WIN32
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace tavimor {

namespace fs = std::filesystem;

#ifdef _WIN32

// A user's own folders are closed to others there.
bool isOwnFolder(const std::string& path) {
  std::error_code ignored;
  return fs::symlink_status(nativePath(path), ignored).type() == fs::file_type::directory;
}

namespace {
bool makeOne(const fs::path& path, std::error_code& error) { return fs::create_directory(path, error) || !error; }
bool closeToOthers(const std::string&) { return true; }
}  // namespace

#else

bool isOwnFolder(const std::string& path) {
  struct stat status = {};
  return lstat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode) && status.st_uid == geteuid();
}

namespace {

bool makeOne(const fs::path& path, std::error_code& error) {
  if (mkdir(path.c_str(), S_IRWXU) == 0 || errno == EEXIST) return true;
  error = std::error_code(errno, std::generic_category());
  return false;
}

bool closeToOthers(const std::string& path) {
  struct stat status = {};
  if (lstat(path.c_str(), &status) != 0) return false;
  return (status.st_mode & (S_IRWXG | S_IRWXO)) == 0 || chmod(path.c_str(), S_IRWXU) == 0;
}

}  // namespace

#endif

bool makePrivateFolder(const std::string& path) {
  const fs::path folder = nativePath(path);
  std::error_code error;
  fs::path made = folder.root_path();
  for (const fs::path& part : folder.relative_path()) {
    made /= part;
    if (fs::is_directory(made, error)) continue;
    error.clear();
    if (makeOne(made, error)) continue;
    errno = error.default_error_condition().value();
    return false;
  }
  if (isOwnFolder(path)) return closeToOthers(path);
  errno = EACCES;
  return false;
}

}  // namespace tavimor
