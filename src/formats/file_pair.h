#pragma once

#include <optional>
#include <string>

#include "formats/pair_paths.h"
#include "platform/held_signals.h"
#include "runtime/output_file.h"
#include "runtime/save_lock.h"

namespace tavimor {

/// Replaces both files of a problem together, or neither.
///
/// Files beside the targets, each with an ending of its own (see work_names.h):
///   .tavimor-lock      one for each target, for the time of the save: who has them is the only one to save
///   .tavimor-1f0c93ab  a new file while it is written, under a name that no other save has
///   .tavimor-new       the new values, the new specification: complete and on the disk, waiting for their places
///   .tavimor-old       a second name of the old values
///   .tavimor-back      the old values on their way back, where a step was refused
///
/// | what stands there                           | the pair to read           |
/// |---------------------------------------------|----------------------------|
/// | old values on their way back                | specification, those       |
/// | new specification without new values        | new specification, values  |
/// | anything else                               | specification, values      |
///
/// The steps of `commit`, each of which leaves one whole pair to read:
///
/// | step                                        | the pair to read           | when it is refused            |
/// |---------------------------------------------|----------------------------|-------------------------------|
/// | 1. own name -> new values                   | the old one                | everything new goes           |
/// | 2. own name -> new specification            | the old one                | everything new goes           |
/// | 3. old values get a second name             | the old one                | everything new goes           |
/// | 4. new values -> values                     | the new one from here on   | everything new goes           |
/// | 5. new specification -> specification       | the new one                | 6. to 8.                      |
/// | 6. second name -> old values on their way   | the old one from here on   | the new pair stays            |
/// | 7. new specification goes                   | the old one                | left for the next save        |
/// | 8. old values on their way -> values        | the old one                | left for the next save        |
///
/// So at any moment, killed or not, a reader finds one whole pair. The next save finishes what a killed one has begun
/// and removes what it has left. A refused step leaves the earlier pair in place and none of these files, and so does
/// a request to end (see HeldSignals) that comes before step 1.
///
/// What remains possible: where the power fails and the disk had not yet taken a renaming that it confirmed; where the
/// file system knows no locks and two programs save at the same moment. A copy of the two files alone, made between a
/// kill and the next save, may hold a specification and values of two saves.
///
/// Links are followed: the files that they lead to are replaced. New files have owner, group, permissions and extended
/// attributes of those that they replace, as far as the user may give them.
/// Errors: a RunTimeError with the path; PathFileAccess where a target is no regular file or is called like one of the
/// files above, FileAlreadyOpen where both targets are one file, or another program saves one of them for
/// longer than `patience`.
class FilePair {
 public:
  /// `newAccess` is who may see files that nothing stood in the place of.
  explicit FilePair(const std::string& path, FileSteps& steps = systemFileSteps(), Patience patience = usualPatience(),
                    Access newAccess = Access::Usual);
  FilePair(const FilePair&) = delete;
  FilePair& operator=(const FilePair&) = delete;
  ~FilePair();

  OutputFile& specification() { return *specification_; }
  OutputFile& values() { return *values_; }

  void commit();

 private:
  void finishInterruptedSave();
  void create(std::optional<OutputFile>& file, const std::string& target);
  void finish(OutputFile& file, const std::string& target);
  void nameNewFiles();
  void putIntoPlace();
  void putBackOldValues();
  void discard();
  bool removed(const std::string& path);
  void remove(const std::string& path);
  void move(const std::string& path, const std::string& target);
  bool foldersAreFlushed();
  void flushFolders();

  HeldSignals heldSignals_;
  FileSteps& steps_;
  PairPaths target_;
  Access newAccess_;
  // One for each file, as two problems can share one: "p" with its values "p.dat", and "p.dat".
  SaveLock valuesLock_;
  SaveLock specificationLock_;
  std::optional<OutputFile> values_;
  std::optional<OutputFile> specification_;
  bool hadOldValues_ = false;
  bool settled_ = false;  // nothing is left to discard
};

}  // namespace tavimor
