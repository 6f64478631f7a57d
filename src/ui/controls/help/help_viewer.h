#pragma once

#include <QPushButton>
#include <QUrl>

#include "ui/controls/form.h"

namespace tavimor {

class HelpContents;
class HelpPage;
class HelpSearch;

/// The help window: the text of a help file beside the list of its pages, with a way back, a search and printing. It
/// is a form like the others, and works while any of them is disabled.
class HelpViewer : public Form {
  Q_OBJECT

 public:
  /// Brings the help window to front, or makes it, and goes to the page with this anchor; to the beginning where the
  /// anchor is empty or the text has no such page. The file must be readable.
  static void showFile(const QString& path, const QString& page);

 private:
  HelpViewer();
  void makeControls();
  void layOut();
  void connectEvents();
  void addKeys();
  void goTo(const QString& anchor);

  void sourceShown(const QUrl& source);
  void scrolled();
  void cmdContents_Click();
  void cmdPrint_Click();

  HelpContents* tvwContents;
  HelpPage* txtPage;
  HelpSearch* search_;
  QPushButton* cmdBack;
  QPushButton* cmdForward;
  QPushButton* cmdContents;
  QPushButton* cmdPrint;
  QUrl listedFile_;
};

}  // namespace tavimor
