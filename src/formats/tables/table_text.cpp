#include "formats/tables/table_text.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>

#include "platform/files.h"
#include "platform/memory.h"
#include "platform/terminal.h"
#include "runtime/run_time_error.h"

namespace tavimor {

namespace {

constexpr std::size_t kFirstBytes = std::size_t{64} * 1024;

// A pipe has no size: it is read like standard input.
std::size_t expectedBytes(const std::string& path) {
  std::error_code error;
  const std::filesystem::path file = nativePath(path);
  if (std::filesystem::is_directory(file, error)) throw fileError(EISDIR, path);
  const std::uintmax_t size = std::filesystem::file_size(file, error);
  return error ? kFirstBytes : static_cast<std::size_t>(size) + 1;  // one more, to find the end without growing
}

}  // namespace

TableText::TableText(std::size_t expectedBytes, const ReadSome& readSome) {
  grow(expectedBytes);
  while (const std::size_t count = readSome(bytes_.get() + size_, capacity_ - size_)) {
    size_ += count;
    if (size_ == capacity_) grow(2 * capacity_);
  }
}

void TableText::grow(std::size_t capacity) {
  auto larger = std::make_unique_for_overwrite<char[]>(capacity);
  preferLargePages(larger.get(), capacity);
  if (size_ > 0) std::memcpy(larger.get(), bytes_.get(), size_);
  bytes_ = std::move(larger);
  capacity_ = capacity;
}

TableText TableText::ofFile(const std::string& path) {
  const FileHandle file = openForReading(path);
  if (!file) throw fileError(errno, path);
  return {expectedBytes(path), [&](char* target, std::size_t most) {
            const std::size_t count = std::fread(target, 1, most, file.get());
            if (count == 0 && std::ferror(file.get()) != 0) throw fileError(errno, path);
            return count;
          }};
}

TableText TableText::ofStandardInput() {
  return {kFirstBytes, [](char* target, std::size_t most) {
            const long count = readStandardInput(target, most);
            if (count < 0) throw fileError(errno, "standard input");
            return static_cast<std::size_t>(count);
          }};
}

}  // namespace tavimor
