#pragma once

#include <optional>
#include <string>

#include "formats/restore/kept_session.h"
#include "runtime/progress.h"

namespace tavimor {

/// How much is kept of the pairs that saves have replaced: the last ten of each file, 256 MB in all.
struct ReplacedLimits {
  std::size_t perFile = 10;
  std::uint64_t bytes = std::uint64_t{256} << 20;
};

/// The pair that a save is about to replace, copied to the user's state folder before the save and kept there after it:
///
///   replaced/FILE/TIME   one pair (see describeKeptPair); FILE stands for the path, TIME is when it was replaced
///
/// A pair whose replacement has the same bytes is no loss and is not kept.
/// Errors: a RunTimeError with the path; nothing is kept then.
class ReplacedPair {
 public:
  /// Copies the pair that stands at `path`, where one does.
  ReplacedPair(KeptSession& session, const std::string& path);
  ReplacedPair(const ReplacedPair&) = delete;
  ReplacedPair& operator=(const ReplacedPair&) = delete;
  ~ReplacedPair();

  /// The save has succeeded: the copy is kept, and what is too old or too much goes.
  void keep(const ReplacedLimits& limits = {});

 private:
  KeptSession& session_;
  std::string path_;
  std::string copy_;  // the folder; empty where there was no pair
};

/// Writes the problem as writeProblem does, and keeps the pair that it replaces. Returns in words why that could not be
/// kept, where it could not: it hinders no save. Errors: as writeProblem.
std::optional<std::string> writeKeepingReplaced(const Problem& problem, const Fit& fit, const std::string& path,
                                                KeptSession& session, const Progress& progress = {});

/// The folder below the state folder that replaced pairs stand in, and the one for those of a file.
std::string replacedFolder(const std::string& stateFolder);
std::string replacedFolderOf(const std::string& stateFolder, const std::string& path);

}  // namespace tavimor
