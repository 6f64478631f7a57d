#pragma once

#include <QObject>

namespace tavimor {

/// While it lives each form comes up with the size and in the place in which the form of its name was left last, as far
/// as a screen has room there. One whose size is fixed comes up as designed.
class WindowPlaces : public QObject {
  Q_OBJECT

 public:
  WindowPlaces();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace tavimor
