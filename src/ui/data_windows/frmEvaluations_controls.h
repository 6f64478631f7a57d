#pragma once

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <array>

#include "ui/controls/text_box.h"

namespace tavimor {

/// The controls of the evaluations window under their names, with captions, fonts and places.
struct EvaluationsControls {
  static constexpr int kRows = 10;  // made; only those of declared variables are ever shown

  explicit EvaluationsControls(QWidget& window);

  QGroupBox* fraEval;
  std::array<QLabel*, kRows> lblVarx;
  std::array<TextBox*, kRows> txtVarx;
  QPushButton* cmdCompute;
  QLabel* lblAppr;
  QLabel* lblApprox;

 private:
  void makeControls();
  void layOut(QWidget& window) const;
};

}  // namespace tavimor
