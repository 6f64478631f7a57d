#pragma once

#include <string>
#include <string_view>

#include "runtime/file_steps.h"

namespace tavimor {

/// Refuses what a renaming would replace although it may not be written: replacing asks only for permission on the
/// folder. Errors: PathFileAccess for what is no regular file, else the system's reason, each with the path.
void requireReplaceable(const std::string& path);

/// The folder in which a file stands, to be flushed.
std::string folderOf(const std::string& path);

/// Puts `bytes` into the file `path`, whole or not at all: they are written beside it under a name that no other
/// program uses, put on the disk, and take its name in one step. A link is followed. The new file has owner, group,
/// permissions and extended attributes of the earlier one. What is refused leaves the earlier file and nothing beside
/// it. Errors: a RunTimeError with the path.
void replaceFile(const std::string& path, std::string_view bytes, FileSteps& steps = systemFileSteps());

}  // namespace tavimor
