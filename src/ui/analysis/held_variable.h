#pragma once

#include <QLineEdit>
#include <QSlider>
#include <QWidget>

#include "model/problem.h"
#include "ui/controls/elided_label.h"

namespace tavimor {

/// Where a variable is held: a slider through the values of its list, and a field for any number.
class HeldVariable : public QWidget {
  Q_OBJECT

 public:
  explicit HeldVariable(Long k);

  /// Holds the variable of another problem: where it was, if that is among its values, and else in the middle of them.
  void setProblem(const Problem& problem);

  double value() const { return value_; }

  /// To a neighbour in the list.
  void step(int places) { sldAt->setValue(sldAt->value() + places); }

  /// At value number i of the list, without saying so. False where it is there already.
  bool holdAt(Long i);

 signals:
  void changed();

 private:
  void takeSlider(int i);
  void takeText();
  void setValue(double value);
  int nearestTo(double value) const;

  Long k_;
  ElidedLabel* lblAt;
  QSlider* sldAt;
  QLineEdit* txtAt;
  std::vector<double> values_;
  double value_ = 0.0;
};

}  // namespace tavimor
