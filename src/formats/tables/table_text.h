#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace tavimor {

/// The bytes of a table, all of them in memory.
class TableText {
 public:
  /// Errors: a RunTimeError with the path where the system refuses.
  static TableText ofFile(const std::string& path);
  static TableText ofStandardInput();

  std::string_view view() const { return {bytes_.get(), size_}; }

 private:
  /// Reads up to so many bytes to a place and returns their number, 0 at the end.
  using ReadSome = std::function<std::size_t(char*, std::size_t)>;

  TableText(std::size_t expectedBytes, const ReadSome& readSome);
  void grow(std::size_t capacity);

  std::unique_ptr<char[]> bytes_;
  std::size_t capacity_ = 0;
  std::size_t size_ = 0;
};

}  // namespace tavimor
