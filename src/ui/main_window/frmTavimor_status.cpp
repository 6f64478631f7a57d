#include <QFileInfo>

#include "runtime/text.h"
#include "ui/main_window/frmTavimor.h"

namespace tavimor {

// A control character of a name is shown by its escape, as in messages.
void frmTavimor::showFileName() {
  const QString path = QString::fromStdString(model_.FileName);
  const std::string name = QFileInfo(path).fileName().toStdString();
  lblFileName->setText(path.isEmpty() ? QStringLiteral("not saved yet") : QString::fromStdString(withEscapes(name)));
}

void frmTavimor::showBlockOfBlocks(Long k) {
  lblBlock->setText(QStringLiteral("block %1 of %2").arg(k + 1).arg(model_.LastVar + 1));
}

}  // namespace tavimor
