#pragma once

#include <string>
#include <string_view>

#include "platform/files.h"

namespace tavimor {

/// The steps of writing files, each of which the system may refuse: then it returns false (or null) and errno says
/// why. The base class asks the system; a test derives from it to refuse a step of its choice. A request to end that
/// is held (see HeldSignals) refuses writing, so that work which takes long is given up and tidied away.
class FileSteps {
 public:
  virtual ~FileSteps() = default;

  /// Makes a file: nothing may stand there.
  virtual FileHandle create(const std::string& path, Access access);
  virtual bool write(std::FILE* file, std::string_view bytes);
  virtual bool flush(std::FILE* file);
  virtual bool close(FileHandle file);

  /// Gives a file owner, group, permissions and the like of another (see platform/file_attributes.h).
  virtual bool takeAttributes(std::FILE* file, const std::string& path);
  virtual bool flushFolder(const std::string& folder);

  /// Gives the file a second name (a copy, where the file system knows no links), so that it survives the first one.
  virtual bool keepAs(const std::string& path, const std::string& secondName);

  /// Puts a file in the place of another in one step: at any moment the name leads to the old one or to the new one.
  /// Where both names are of one file already, the first one goes.
  virtual bool replace(const std::string& path, const std::string& target);
  virtual bool remove(const std::string& path);
};

/// The steps that ask the system.
FileSteps& systemFileSteps();

}  // namespace tavimor
