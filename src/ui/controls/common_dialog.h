#pragma once

#include <string>

#include "ui/controls/dialog_end.h"

class QPrinter;

namespace tavimor {

/// The value of HelpCommand that opens the help file and brings it into view.
inline constexpr int kHelpForceFile = 9;

/// The dialogs in which the user names a problem's file (no filter, no default extension) and chooses a printer, and
/// the help window.
///
/// FileName is what the dialogs begin with and what they leave; calling one off leaves it as it was, so that a name
/// once given is there again after a later dialog that was called off.
class CommonDialog {
 public:
  std::string FileName;

  DialogEnd ShowOpen();

  /// Asks before it takes a name under which one of a pair's files exists already.
  DialogEnd ShowSave();

  int HelpCommand = 0;
  std::string HelpFile;

  /// Shows HelpFile in the help window, at the page with this anchor or from the beginning; in the place of a file that
  /// is not there the installed one of that name. Where there is neither, a message says what was looked for.
  void ShowHelp(const std::string& page = {}) const;

  /// See choosePrinter.
  DialogEnd ShowPrinter(QPrinter& printer) const;
};

/// Whether the pair of this path may be written as far as the user is concerned: asks where one of the files exists.
bool mayReplacePair(const std::string& path);

}  // namespace tavimor
