#include "runtime/file_steps.h"

#include <cerrno>
#include <filesystem>
#include <vector>

#include "platform/file_attributes.h"
#include "platform/file_query.h"
#include "platform/held_signals.h"
#include "platform/rename_over.h"

namespace tavimor {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kCopiedAtATime = std::size_t{64} * 1024;

bool succeeded(const std::error_code& error) {
  if (error) errno = error.default_error_condition().value();
  return !error;
}

bool writeAll(std::FILE* file, std::string_view bytes) {
  return std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
}

bool copyContent(std::FILE* from, std::FILE* to) {
  std::vector<char> bytes(kCopiedAtATime);
  while (const std::size_t count = std::fread(bytes.data(), 1, bytes.size(), from))
    if (!writeAll(to, {bytes.data(), count})) return false;
  return std::ferror(from) == 0;
}

bool copyFile(const std::string& path, const std::string& copyPath) {
  const FileHandle file = openForReading(path);
  if (!file) return false;
  const FileHandle copy = createFile(copyPath, Access::Private);
  return copy && takeAttributes(copy.get(), path) && copyContent(file.get(), copy.get()) && flushToDisk(copy.get());
}

bool removeFile(const std::string& path) {
  std::error_code error;
  const fs::path file = nativePath(path);
  if (fs::is_directory(fs::symlink_status(file, error))) {
    errno = EISDIR;
    return false;
  }
  error.clear();
  fs::remove(file, error);
  return succeeded(error);
}

}  // namespace

FileHandle FileSteps::create(const std::string& path, Access access) { return createFile(path, access); }

bool FileSteps::write(std::FILE* file, std::string_view bytes) {
  if (!HeldSignals::endIsRequested()) return writeAll(file, bytes);
  errno = EINTR;
  return false;
}

bool FileSteps::flush(std::FILE* file) { return flushToDisk(file); }

bool FileSteps::close(FileHandle file) { return std::fclose(file.release()) == 0; }

bool FileSteps::takeAttributes(std::FILE* file, const std::string& path) { return tavimor::takeAttributes(file, path); }

bool FileSteps::flushFolder(const std::string& folder) { return flushFolderToDisk(folder); }

bool FileSteps::keepAs(const std::string& path, const std::string& secondName) {
  if (!removeFile(secondName)) return false;
  std::error_code error;
  fs::create_hard_link(nativePath(path), nativePath(secondName), error);
  return !error || copyFile(path, secondName);
}

// A renaming between two names of one file would do nothing and leave both.
bool FileSteps::replace(const std::string& path, const std::string& target) {
  FileFacts file, replaced;
  if (!queryFile(path, LastLink::Keep, file) || !queryFile(target, LastLink::Keep, replaced)) return false;
  if (file.isSameFileAs(replaced)) return removeFile(path);
  return renameOver(path, target);
}

bool FileSteps::remove(const std::string& path) { return removeFile(path); }

FileSteps& systemFileSteps() {
  static FileSteps steps;
  return steps;
}

}  // namespace tavimor
