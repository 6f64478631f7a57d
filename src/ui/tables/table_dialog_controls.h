#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <array>

#include "model/table4.h"
#include "ui/controls/text_box.h"
#include "ui/tables/table_preview.h"

class QLayout;

namespace tavimor {

/// The controls of the table dialog under their names, with captions, fonts and places.
struct TableDialogControls {
  explicit TableDialogControls(QWidget& window);

  QLabel* lblSeparator;
  QComboBox* cboSeparator;
  QLabel* lblMark;
  QComboBox* cboMark;
  QLabel* lblForm;
  QComboBox* cboForm;
  QCheckBox* chkHeading;
  TablePreview* grdPreview;
  QLabel* lblFindings;
  QListWidget* lstFindings;
  QCheckBox* chkMeans;
  QCheckBox* chkShrink;
  QLabel* lblDegree;
  QLabel* lblCentre;
  PerVariable<QLabel*> lblVariable;
  PerVariable<TextBox*> txtDegree;
  PerVariable<TextBox*> txtCentre;
  QPushButton* cmdCreate;
  QPushButton* cmdCancel;

 private:
  void makeFormatControls();
  void makeControls();
  void makeVariable(int k);
  QLayout* formatLayout() const;
  QLayout* variablesLayout() const;
  QLayout* buttonsLayout() const;
};

}  // namespace tavimor
