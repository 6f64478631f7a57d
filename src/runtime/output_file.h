#pragma once

#include <string>
#include <string_view>

#include "platform/files.h"
#include "runtime/file_steps.h"
#include "runtime/long.h"

namespace tavimor {

/// Writes a new text file of Print and Write lines, each ended by CR LF. Nothing may stand at its path.
///   Print line: one number in the form of printedNumber: " 3 ", " .5 ", "-2.25 ".
///   Write line: a record, its items separated by single commas: texts in quotes, numbers as writtenNumber has them,
///   #TRUE# or #FALSE#.
/// Errors: a RunTimeError with the path where the system refuses a step.
class OutputFile {
 public:
  /// `target` is the file that the user knows, for errors, where it is not `path` itself.
  OutputFile(const std::string& path, FileSteps& steps, const std::string& target = {},
             Access access = Access::Private);

  void print(double value);
  void print(Long value);

  /// Lines that were made by printedLines.
  void printLines(std::string_view lines);

  template <class... Items>
  void write(const Items&... items) {
    (appendItem(items), ...);
    endRecord();
  }

  /// Takes what belongs to another file beside its content: its permissions, for instance.
  void takeAttributesOf(const std::string& path);

  /// Hands everything to the system and has it put on the disk; nothing may be written afterwards.
  void finish();

  const std::string& path() const { return path_; }

 private:
  void appendItem(std::string_view text);
  void appendItem(const char* text) { appendItem(std::string_view(text)); }  // a bool would be nearer to a pointer
  void appendItem(bool value);
  void appendItem(double value);
  void appendItem(Long value);
  void endRecord();
  void endLine();
  void handOverWhenFull();
  void handOver();

  std::string path_;
  std::string target_;
  FileSteps& steps_;
  FileHandle file_;
  std::string pending_;
};

}  // namespace tavimor
