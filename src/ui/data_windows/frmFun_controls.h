#pragma once

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

#include "model/table4.h"
#include "ui/controls/status_line.h"
#include "ui/controls/text_box.h"

namespace tavimor {

/// The controls of the function values window under their names, with captions, fonts and places. Element k of an
/// array belongs to variable k; all of them are hidden at first.
struct FunControls {
  explicit FunControls(QWidget& window);

  /// Puts the boxes of the function call into place for the variables up to lastVar, its end staying where it is: with
  /// one variable the index stands in the last box's place.
  void layOutFunctionCall(Long lastVar);

  /// Shows the controls of variable k under its name.
  void showRow(Long k, const QString& name) const;

  QLabel* lblFun;
  PerVariable<TextBox*> txtFunIndex;
  std::array<QLabel*, kMaxVariables - 1> lblComma;
  QLabel* Label5;
  TextBox* txtFun;
  QPushButton* cmdIncFunIndex;
  QPushButton* cmdDecFunIndex;

  QGroupBox* Frame1;
  PerVariable<QLabel*> lblVar;
  PerVariable<TextBox*> txtVarIndex;
  PerVariable<QLabel*> lblClose;
  PerVariable<TextBox*> txtVar;
  PerVariable<QPushButton*> cmdIncIndex;
  PerVariable<QPushButton*> cmdDecIndex;

  QPushButton* cmdExit;
  StatusLine* stbStatus;

 private:
  void makeFunctionCall();
  void makeRow(int k);
  void layOut(QWidget& window);
  void place(QWidget* control, int column, Qt::Alignment alignment);
  void layOutDesign();
  void layOutRows(int gap);
  void orderTabs() const;

  QGridLayout* call_;
};

}  // namespace tavimor
