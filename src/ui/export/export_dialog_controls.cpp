#include "ui/export/export_dialog_controls.h"

#include <QGridLayout>
#include <QHBoxLayout>

#include "formats/formulas/export_formats.h"
#include "ui/controls/make_control.h"

namespace tavimor {

namespace {

constexpr int kWidestNumber = 22;  // characters of "-1.23456789012345E-300"
constexpr int kColumns = 100;      // of the preview
constexpr int kRows = 28;

}  // namespace

ExportDialogControls::ExportDialogControls(QWidget& dialog) {
  makeControls();
  layOut(dialog);
}

void ExportDialogControls::makeControls() {
  lblFormat = makeControl<QLabel>(QStringLiteral("lblFormat"), "&Form");
  cboFormat = new QComboBox;
  cboFormat->setObjectName(QStringLiteral("cboFormat"));
  for (const ExportFormat& format : exportFormats())
    cboFormat->addItem(QString::fromUtf8(format.title.data(), static_cast<qsizetype>(format.title.size())));
  lblName = makeControl<QLabel>(QStringLiteral("lblName"), "&Name");
  txtName = new TextBox(QStringLiteral("txtName"));
  lblWithin = makeControl<QLabel>(QStringLiteral("lblWithin"), "&Round, staying within");
  txtWithin = new TextBox(QStringLiteral("txtWithin"));
  txtWithin->setToolTip(QStringLiteral("The largest difference from the fit; empty for all digits"));
  txtWithin->setMinimumWidth(widthOf(*txtWithin, kWidestNumber));
  chkNaN = makeControl<QCheckBox>(QStringLiteral("chkNaN"), "NaN &outside the intervals");
  lblChecks = makeControl<QLabel>(QStringLiteral("lblChecks"), "C&heck points");
  txtChecks = new TextBox(QStringLiteral("txtChecks"));
  txtChecks->setToolTip(QStringLiteral("How many points a code carries to check itself; 0 for no check"));
  txtChecks->setText(QString::number(FormulaOptions().checks));
  chkPrecise = makeControl<QCheckBox>(QStringLiteral("chkPrecise"), "&Precise coefficients");
  txtPreview = makePreview();
  cmdCopy = makeButton(QStringLiteral("cmdCopy"), "&Copy");
  cmdSave = makeButton(QStringLiteral("cmdSave"), "&Save...");
  cmdClose = makeButton(QStringLiteral("cmdClose"), "Close");
  lblFormat->setBuddy(cboFormat);
  lblName->setBuddy(txtName);
  lblWithin->setBuddy(txtWithin);
  lblChecks->setBuddy(txtChecks);
}

void ExportDialogControls::layOut(QWidget& dialog) const {
  auto* choices = new QGridLayout;
  choices->addWidget(lblFormat, 0, 0, Qt::AlignRight);
  choices->addWidget(cboFormat, 0, 1);
  choices->addWidget(lblName, 0, 2, Qt::AlignRight);
  choices->addWidget(txtName, 0, 3);
  choices->addWidget(lblWithin, 1, 0, Qt::AlignRight);
  choices->addWidget(txtWithin, 1, 1);
  choices->addWidget(chkNaN, 1, 3);
  choices->addWidget(lblChecks, 2, 0, Qt::AlignRight);
  choices->addWidget(txtChecks, 2, 1);
  choices->addWidget(chkPrecise, 2, 3);
  choices->setColumnStretch(3, 1);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  for (QPushButton* button : {cmdCopy, cmdSave, cmdClose}) {
    button->setAutoDefault(false);
    buttons->addWidget(button);
  }
  const QFontMetrics metrics(txtPreview->font());
  txtPreview->setMinimumSize(metrics.averageCharWidth() * kColumns / 2, metrics.lineSpacing() * kRows / 3);
  dialog.resize(metrics.averageCharWidth() * kColumns, metrics.lineSpacing() * kRows);
  auto* whole = new QVBoxLayout(&dialog);
  whole->addLayout(choices);
  whole->addWidget(txtPreview, 1);
  whole->addLayout(buttons);
}

}  // namespace tavimor
