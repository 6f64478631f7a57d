#pragma once

#include <optional>
#include <string>

#include "runtime/output_file.h"

namespace tavimor {

/// The two files of a problem: `path` itself and `path` with ".dat" appended.
std::string valuesPath(const std::string& path);

/// The specification file to read. This is `path`, but where a save ended between its last two steps it is the
/// finished file beside it, which belongs to the values that are in place already.
std::string specificationPath(const std::string& path);

/// Replaces both files of a problem together, or neither.
///
/// Both are written in full under names of their own (".tavimor-new" appended), the values first. `commit` then puts
/// the values in their place and last the specification. A reader takes a new specification that stands alone for
/// the real one (see specificationPath), so that a save that is killed between the two steps has happened; killed at
/// any other moment, it has not. A step that the system refuses leaves the earlier pair in place.
///
/// Errors: a RunTimeError with the path; PathFileAccess where a target is no regular file.
class FilePair {
 public:
  explicit FilePair(const std::string& path, FileSteps& steps = systemFileSteps());
  FilePair(const FilePair&) = delete;
  FilePair& operator=(const FilePair&) = delete;
  ~FilePair();

  OutputFile& specification() { return *specification_; }
  OutputFile& values() { return *values_; }

  void commit();

 private:
  void finishInterruptedSave();
  void putBackOldValues(bool hadOldValues);
  std::string folder() const;
  void flushFolder();

  FileSteps& steps_;
  std::string specificationTarget_;
  std::string valuesTarget_;
  std::optional<OutputFile> values_;
  std::optional<OutputFile> specification_;
  bool committed_ = false;
};

}  // namespace tavimor
