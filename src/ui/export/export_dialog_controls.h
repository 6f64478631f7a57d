#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>

#include "ui/controls/text_box.h"

namespace tavimor {

/// The controls of the export dialog under their names, with captions and places.
struct ExportDialogControls {
  explicit ExportDialogControls(QWidget& dialog);

  QLabel* lblFormat;
  QComboBox* cboFormat;
  QLabel* lblName;
  TextBox* txtName;
  QLabel* lblWithin;
  TextBox* txtWithin;
  QCheckBox* chkNaN;
  QLabel* lblChecks;
  TextBox* txtChecks;
  QCheckBox* chkPrecise;
  QPlainTextEdit* txtPreview;
  QPushButton* cmdCopy;
  QPushButton* cmdSave;
  QPushButton* cmdClose;

 private:
  void makeControls();
  void layOut(QWidget& dialog) const;
};

}  // namespace tavimor
