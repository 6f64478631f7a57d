#include "ui/restore/restore_dialog_controls.h"

#include <QHBoxLayout>

#include "ui/controls/make_control.h"

namespace tavimor {

namespace {

constexpr int kColumns = 90;  // characters of the preview's font
constexpr int kRows = 30;

}  // namespace

RestoreDialogControls::RestoreDialogControls(QWidget& dialog) {
  makeList();
  lblPreview = makeControl<QLabel>(QStringLiteral("lblPreview"), "&Preview:");
  txtPreview = makePreview();
  lblPreview->setBuddy(txtPreview);
  cmdOpen = makeButton(QStringLiteral("cmdOpen"), "&Open a copy");
  cmdRemove = makeButton(QStringLiteral("cmdRemove"), "&Remove");
  cmdClose = makeButton(QStringLiteral("cmdClose"), "Close");
  cmdOpen->setDefault(true);
  for (QPushButton* button : {cmdRemove, cmdClose}) button->setAutoDefault(false);
  layOut(dialog);
}

void RestoreDialogControls::makeList() {
  lblRestore = makeControl<QLabel>(QStringLiteral("lblRestore"), "&What was not saved, and what saves have replaced:");
  lstRestore = new QTreeWidget;
  lstRestore->setObjectName(QStringLiteral("lstRestore"));
  lstRestore->setAccessibleName(QStringLiteral("What can be restored"));
  lstRestore->setFont(sansSerifFont());
  lstRestore->setHeaderLabels({QStringLiteral("Problem"), QStringLiteral("Variables"), QStringLiteral("Points"),
                               QStringLiteral("When"), QStringLiteral("Why it is here")});
  lstRestore->setTextElideMode(Qt::ElideMiddle);
  lblRestore->setBuddy(lstRestore);
}

void RestoreDialogControls::layOut(QWidget& dialog) const {
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(cmdRemove);
  buttons->addStretch(1);
  buttons->addWidget(cmdOpen);
  buttons->addWidget(cmdClose);
  auto* whole = new QVBoxLayout(&dialog);
  whole->addWidget(lblRestore);
  whole->addWidget(lstRestore, 3);
  whole->addWidget(lblPreview);
  whole->addWidget(txtPreview, 2);
  whole->addLayout(buttons);
  const QFontMetrics metrics(txtPreview->font());
  dialog.resize(metrics.averageCharWidth() * kColumns, metrics.lineSpacing() * kRows);
}

}  // namespace tavimor
