#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/files.h"
#include "runtime/long.h"
#include "runtime/progress.h"

namespace tavimor {

/// Reads a text file field by field. Fields end at a comma or at a line's end (CR LF or LF), and any item may stand
/// on a line of its own or beside others; blanks around a field do not count. A UTF-8 byte-order mark is skipped.
/// Memory: one window of the file, whatever its size; a field that is longer than the window is refused.
/// Errors: a RunTimeError with the path where the system refuses; a BadFile with line, expected and found where a
/// field is not what the call asks for. `item` says what is read, for that error: "the degree".
class InputFile {
 public:
  explicit InputFile(const std::string& path);

  /// Reads a file that is open already. Null stands for a file that is missing.
  InputFile(FileHandle file, const std::string& path);

  /// Tells `progress` the share of the file that has been read, whenever more of it is.
  void setProgress(Progress progress) { progress_ = std::move(progress); }

  /// A text without its quotes. The closing quote is one that a comma or the line's end follows, blanks between
  /// allowed, so that a text may hold quotes itself.
  std::string readText(const char* item);

  double readDouble(const char* item);

  /// A number, rounded to a whole one with halves to even, that must lie within the given limits.
  Long readLong(const char* item, Long least = std::numeric_limits<Long>::min(),
                Long most = std::numeric_limits<Long>::max());

  /// "#TRUE#" or "#FALSE#".
  bool readBoolean(const char* item);

  /// As many numbers as there are places for them.
  void readDoubles(const char* item, std::span<double> numbers);

  /// Only blank lines may follow: anything else is an error.
  void expectEnd();

  /// The most fields that the rest of the file can hold: a field takes a byte at least, and so does a separator.
  std::uint64_t mostFieldsLeft() const;

  /// The error at the place that the reading has reached.
  [[noreturn]] void refuse(const std::string& expected, const std::string& found) const;

 private:
  struct NumberField {
    double value;
    const char* end;
  };

  bool fill();
  const char* afterBlanks(const char* at) const;
  bool needsMore(const char* at) const;
  bool isFieldEnd(const char* at) const;
  void skipBlanks();
  NumberField peekNumber(const char* item);
  std::string_view peekPlainField(const char* item);
  const char* findClosingQuote(const char* item);
  void consume(const char* end);
  std::string foundText() const;

  std::string path_;
  FileHandle file_;
  std::uint64_t unread_;  // bytes of the file that have not come to the window yet
  std::vector<char> window_;
  const char* at_;
  const char* last_;
  std::uint64_t size_ = unread_;
  Progress progress_;
  bool ended_ = false;  // nothing follows the window
  long line_ = 1;
};

}  // namespace tavimor
