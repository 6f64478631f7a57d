#pragma once

#include <string>

namespace tavimor {

enum class DialogEnd { Confirmed, Cancelled };

/// The dialogs in which the user names a problem's file. No filter, no default extension.
///
/// FileName is what the dialogs begin with and what they leave; calling one off leaves it as it was, so that a name
/// once given is there again after a later dialog that was called off.
class CommonDialog {
 public:
  std::string FileName;

  DialogEnd ShowOpen();

  /// Asks before it takes a name under which one of a pair's files exists already.
  DialogEnd ShowSave();
};

/// Whether the pair of this path may be written as far as the user is concerned: asks where one of the files exists.
bool mayReplacePair(const std::string& path);

}  // namespace tavimor
