#include "runtime/file_steps.h"

#include <cerrno>
#include <filesystem>

namespace tavimor {

namespace {

bool succeeded(const std::error_code& error) {
  if (error) errno = error.default_error_condition().value();
  return !error;
}

}  // namespace

FileHandle FileSteps::create(const std::string& path) { return openFile(path, "wb"); }

bool FileSteps::write(std::FILE* file, std::string_view bytes) {
  return std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
}

bool FileSteps::flush(std::FILE* file) { return flushToDisk(file); }

bool FileSteps::close(FileHandle file) { return std::fclose(file.release()) == 0; }

bool FileSteps::flushFolder(const std::string& folder) { return flushFolderToDisk(folder); }

bool FileSteps::keepAs(const std::string& path, const std::string& secondName) {
  const std::filesystem::path file = nativePath(path), second = nativePath(secondName);
  std::error_code error;
  std::filesystem::remove(second, error);
  std::filesystem::create_hard_link(file, second, error);
  if (error) std::filesystem::copy_file(file, second, std::filesystem::copy_options::overwrite_existing, error);
  return succeeded(error);
}

bool FileSteps::replace(const std::string& path, const std::string& target) {
  std::error_code error;
  std::filesystem::rename(nativePath(path), nativePath(target), error);
  return succeeded(error);
}

bool FileSteps::remove(const std::string& path) {
  std::error_code error;
  const std::filesystem::path file = nativePath(path);
  if (std::filesystem::is_directory(file, error)) {
    errno = EISDIR;
    return false;
  }
  std::filesystem::remove(file, error);
  return succeeded(error);
}

FileSteps& systemFileSteps() {
  static FileSteps steps;
  return steps;
}

}  // namespace tavimor
