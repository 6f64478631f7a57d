#pragma once

#include <QProgressBar>
#include <QPushButton>

namespace tavimor {

/// Shows how far a long work has come, with a button that stops it; for a status line. Hidden where there is none.
class WorkDisplay : public QWidget {
  Q_OBJECT

 public:
  WorkDisplay();

  /// Shows a share of 0..1.
  void showShare(double share);

  QProgressBar* prgWork;
  QPushButton* cmdStop;
};

}  // namespace tavimor
