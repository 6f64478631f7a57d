#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTextCursor>
#include <vector>

namespace tavimor {

class HelpPage;

/// The search line of a help window: a field, buttons, and what became of the search. All places of the text in the
/// field are marked as it is typed; Enter goes to the next one, Shift+Enter to the previous one, round the text's ends.
class HelpSearch : public QWidget {
  Q_OBJECT

 public:
  explicit HelpSearch(HelpPage& page);

  /// Gives the field the focus, its text selected.
  void begin();

  void findNext();
  void findPrevious();

 private:
  void makeControls();
  void markPlaces();
  void textTyped();
  void goTo(std::size_t place, const QString& remark);
  QTextCursor start() const;

  HelpPage& page_;
  std::vector<QTextCursor> places_;

  QLineEdit* txtFind;
  QPushButton* cmdFindNext;
  QPushButton* cmdFindPrevious;
  QLabel* lblFound;
};

}  // namespace tavimor
