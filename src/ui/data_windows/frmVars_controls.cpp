#include "ui/data_windows/frmVars_controls.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QScrollBar>
#include <QVBoxLayout>

#include "ui/controls/make_control.h"

namespace tavimor {

namespace {

constexpr int kDesignedDigits = 15;
constexpr int kLabelDigits = 14;
constexpr int kRowsInView = 12;

}  // namespace

VarsControls::VarsControls(QWidget& window) {
  makeControls(window);
  layOut(window);
}

void VarsControls::makeControls(QWidget& window) {
  MSFlexGridVars = new FlexGrid(QStringLiteral("MSFlexGridVars"));
  MSFlexGridVars->setAccessibleName(QStringLiteral("Values of the variable"));
  MSFlexGridVars->setCols(2);
  MSFlexGridVars->setFixedCols(1);
  MSFlexGridVars->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
  MSFlexGridVars->setColWidth(1, widthOf(*MSFlexGridVars, kDesignedDigits));

  txtDataEntry = new TextBox(QStringLiteral("txtDataEntry"), &window);
  txtDataEntry->setFont(verdanaFont());
  txtDataEntry->setAlignment(Qt::AlignCenter);
  txtDataEntry->setAccessibleName(QStringLiteral("Value"));
  txtDataEntry->setPasting(Pasting::AsTyped);
  MSFlexGridVars->setRowHeight(txtDataEntry->sizeHint().height());

  cmdDelete = makeButton(QStringLiteral("cmdDelete"), "Delete");
  cmdDelete->setToolTip(QStringLiteral("Find maxima and minima"));
  cmdExit = makeButton(QStringLiteral("cmdExit"), "Done");
  stbStatus = new StatusLine;
}

void VarsControls::layOut(QWidget& window) const {
  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  buttons->addWidget(cmdDelete);
  buttons->addWidget(cmdExit);
  auto* whole = new QVBoxLayout(&window);
  whole->addWidget(MSFlexGridVars);
  whole->addLayout(buttons);
  whole->addWidget(stbStatus);

  // Room for the column at twice its designed width, as it stands at the first opening.
  const int frame = 2 * MSFlexGridVars->frameWidth();
  const int scrollBar = MSFlexGridVars->verticalScrollBar()->sizeHint().width();
  const int values = 2 * MSFlexGridVars->ColWidth(1);
  MSFlexGridVars->setMinimumWidth(widthOf(*MSFlexGridVars, kLabelDigits) + values + scrollBar + frame);
  MSFlexGridVars->setMinimumHeight(txtDataEntry->sizeHint().height() * kRowsInView / 2);
  window.resize(window.minimumSizeHint().width(), 0);
  const int foot = buttons->sizeHint().height() + stbStatus->sizeHint().height();
  window.resize(window.width(), foot + txtDataEntry->sizeHint().height() * (kRowsInView + 1));

  txtDataEntry->raise();
  const QList<QWidget*> order{MSFlexGridVars, txtDataEntry, cmdDelete, cmdExit};
  for (qsizetype n = 1; n < order.size(); ++n) QWidget::setTabOrder(order[n - 1], order[n]);
}

}  // namespace tavimor
