#include "ui/controls/work_display.h"

#include <QHBoxLayout>

#include "ui/controls/make_control.h"

namespace tavimor {

namespace {
constexpr int kPercent = 100;
}

WorkDisplay::WorkDisplay() : prgWork(new QProgressBar), cmdStop(makeButton(QStringLiteral("cmdStop"), "Stop")) {
  prgWork->setObjectName(QStringLiteral("prgWork"));
  prgWork->setAccessibleName(QStringLiteral("Progress"));
  prgWork->setRange(0, kPercent);
  cmdStop->setToolTip(QStringLiteral("Escape does the same"));
  cmdStop->setFocusPolicy(Qt::NoFocus);  // the focus stays where the work was asked for
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins({});
  row->addWidget(prgWork);
  row->addWidget(cmdStop);
  hide();
}

void WorkDisplay::showShare(double share) {
  prgWork->setValue(static_cast<int>(share * kPercent));
  show();
}

}  // namespace tavimor
