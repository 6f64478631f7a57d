#pragma once

#include <optional>
#include <string>

#include "runtime/output_file.h"

namespace tavimor {

/// The two files of a problem.
struct PairPaths {
  std::string specification;
  std::string values;
};

/// `path` itself and `path` with ".dat" appended: where a problem is written.
PairPaths pairPaths(const std::string& path);

/// The files to read for the problem `path`. These are its own, but where a save was killed on its way they can be
/// those beside them that belong together (see FilePair).
/// Errors: PathFileAccess for links that lead in a circle.
PairPaths readablePair(const std::string& path);

/// Replaces both files of a problem together, or neither.
///
/// Files beside the targets, each with an ending of its own:
///   .tavimor-new   the new specification, the new values: written in full and put on the disk before anything moves
///   .tavimor-old   a second name of the old values
///   .tavimor-back  the old values on their way back, where a step was refused
///
/// | what stands there                           | the pair to read           |
/// |---------------------------------------------|----------------------------|
/// | old values on their way back                | specification, those       |
/// | new specification without new values        | new specification, values  |
/// | anything else                               | specification, values      |
///
/// `commit` moves the new values into place, and by this one step the new pair is the one to read; then the new
/// specification. Where that is refused, the old values take the name of those on their way back, and by this one step
/// the old pair is the one to read again. So at any moment, killed or not, a reader finds one whole pair; the next
/// save tidies up. A refused step leaves the earlier pair in place and none of these files.
///
/// What remains possible: where the power fails and the disk had not yet taken a renaming that it confirmed. A copy of
/// the two files alone, made between a kill and the next save, may hold a specification and values of two saves.
///
/// Links are followed: the files that they lead to are replaced.
/// Errors: a RunTimeError with the path; PathFileAccess where a target is no regular file, FileAlreadyOpen where both
/// targets are one file.
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
  void create(std::optional<OutputFile>& file, const std::string& target);
  void putBackOldValues();
  void discard();
  bool removed(const std::string& path);
  void remove(const std::string& path);
  void move(const std::string& path, const std::string& target);
  void flushFolders();

  FileSteps& steps_;
  PairPaths target_;
  std::optional<OutputFile> values_;
  std::optional<OutputFile> specification_;
  bool hadOldValues_ = false;
  bool settled_ = false;  // nothing is left to discard
};

}  // namespace tavimor
