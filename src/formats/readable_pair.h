#pragma once

#include "formats/pair_paths.h"
#include "platform/files.h"

namespace tavimor {

/// The files to read for the problem `path`. These are its own, but where a save was killed on its way they can be
/// those beside them that belong together (see FilePair).
/// Errors: PathFileAccess for links that lead in a circle, a RunTimeError where the system does not tell.
PairPaths readablePair(const std::string& path);

/// Both files of a problem, open for reading; a missing one is null.
struct OpenPair {
  PairPaths paths;
  FileHandle specification;
  FileHandle values;
};

/// Opens the files to read for the problem `path` so that both belong to one save, although programs may save it
/// meanwhile: both are opened, then it is made sure that they are the files to read still; if not, once more.
/// Errors: a RunTimeError where a file cannot be opened or is no regular file; FileAlreadyOpen where the problem does
/// not stop changing.
OpenPair openPair(const std::string& path);

}  // namespace tavimor
