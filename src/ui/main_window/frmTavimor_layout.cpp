#include <QHBoxLayout>
#include <QMenuBar>
#include <QScreen>
#include <QScrollArea>
#include <QVBoxLayout>

#include "ui/main_window/frmTavimor_controls.h"

namespace tavimor {

namespace {

constexpr QSize kInitialSize(640, 600);
constexpr QSize kFrame(16, 48);  // what a window manager puts around a window, more or less

// On a small screen, or a large scale, what does not fit is scrolled to.
QWidget* makeScrolledGround(QVBoxLayout& whole) {
  auto* area = new QScrollArea;
  area->setFrameShape(QFrame::NoFrame);
  area->setFocusPolicy(Qt::NoFocus);
  area->setWidgetResizable(true);
  auto* ground = new QWidget;
  area->setWidget(ground);
  whole.setContentsMargins({});
  whole.setSpacing(0);
  whole.addWidget(area);
  return ground;
}

// Its texts begin and end where the fields above them do.
void alignWith(const QLayout& rows, QWidget& statusLine) {
  const QMargins margins = rows.contentsMargins();
  statusLine.setContentsMargins(margins.left(), 0, margins.right(), 0);
}

void addStretched(QBoxLayout& layout, QWidget* widget) { layout.addWidget(widget, 1); }

}  // namespace

MainControls::MainControls(QWidget& window) {
  makeMenus(window);
  makeControls();
  makeStatusLine();
  layOutSpecs();

  auto* middle = new QHBoxLayout;
  addStretched(*middle, fraSpecs);
  middle->addLayout(buttonsLayout());
  auto* whole = new QVBoxLayout(&window);
  whole->setMenuBar(menuBar);
  auto* rows = new QVBoxLayout(makeScrolledGround(*whole));
  rows->addLayout(headingLayout());
  rows->addLayout(middle);
  addStretched(*rows, lstCoeff);
  whole->addWidget(stbStatus);
  alignWith(*rows, *stbStatus);
  window.resize(kInitialSize.boundedTo(window.screen()->availableSize() - kFrame));

  addBlock();
  showBlock(blocks.front());
  labelBlock(0);
  orderTabs();
}

QLayout* MainControls::headingLayout() const {
  auto* heading = new QGridLayout;
  heading->addWidget(lblOrder, 0, 0);
  heading->addWidget(txtOrder, 0, 1);
  heading->addWidget(lblVarNam, 1, 0, 1, 3);
  heading->addWidget(txtVarNams, 2, 0, 1, 3);
  heading->setColumnStretch(2, 1);
  return heading;
}

void MainControls::layOutSpecs() {
  specs_ = new QGridLayout(fraSpecs);
  blockButtons_ = new QGridLayout;
  specs_->addWidget(lblVariable, 0, 0);
  specs_->addWidget(lblLL, 1, 0);
  specs_->addWidget(lblUL, 1, 2);
  specs_->addWidget(lblPoints, 2, 0);
  specs_->addWidget(lblTerms, 2, 2);
  specs_->addWidget(lblExpansion, 3, 0);
  auto* buttons = new QHBoxLayout;
  buttons->addLayout(blockButtons_);
  buttons->addStretch(1);
  buttons->addWidget(cmdPrevVar);
  buttons->addWidget(cmdNextVar);
  specs_->addLayout(buttons, 4, 0, 1, 4);
  specs_->setColumnStretch(1, 1);
  specs_->setColumnStretch(3, 1);
}

QLayout* MainControls::buttonsLayout() const {
  auto* buttons = new QVBoxLayout;
  buttons->addWidget(cmdEditFun);
  buttons->addWidget(cmdCompute);
  buttons->addWidget(cmdEvaluations);
  buttons->addStretch(1);
  return buttons;
}

void MainControls::addBlock() {
  const SpecBlock block = makeSpecBlock(static_cast<int>(blocks.size()));
  hideBlock(block);
  specs_->addWidget(block.lblVar, 0, 1, 1, 3);
  specs_->addWidget(block.txtLL, 1, 1);
  specs_->addWidget(block.txtUL, 1, 3);
  specs_->addWidget(block.txtPoints, 2, 1);
  specs_->addWidget(block.txtTerms, 2, 3);
  specs_->addWidget(block.txtExpansion, 3, 1);
  specs_->addWidget(block.chkSpaced, 3, 2, 1, 2);
  blockButtons_->addWidget(block.cmdAddVars, 0, 0);
  blockButtons_->addWidget(block.cmdEditVars, 0, 1);
  blocks.push_back(block);
}

void MainControls::orderTabs() const {
  QList<QWidget*> order{txtOrder, txtVarNams};
  for (const SpecBlock& block : blocks)
    order << block.txtLL << block.txtUL << block.txtPoints << block.txtTerms << block.txtExpansion << block.chkSpaced
          << block.cmdAddVars << block.cmdEditVars;
  order << cmdPrevVar << cmdNextVar << cmdEditFun << cmdCompute << cmdEvaluations << lstCoeff;
  for (qsizetype n = 1; n < order.size(); ++n) QWidget::setTabOrder(order[n - 1], order[n]);
}

}  // namespace tavimor
