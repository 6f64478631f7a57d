#include "ui/controls/help_print.h"

#include <QPrintDialog>
#include <QPrinter>
#include <memory>

namespace tavimor {

void printHelp(const QTextDocument& document, QWidget& parent) {
  QPrinter printer(QPrinter::HighResolution);
  printer.setDocName(parent.windowTitle());
  QPrintDialog dialog(&printer, &parent);
  if (dialog.exec() != QDialog::Accepted) return;

  constexpr double kPointsOnPaper = 10;
  const std::unique_ptr<QTextDocument> copy(document.clone());
  QFont font = copy->defaultFont();
  font.setPointSizeF(kPointsOnPaper);
  copy->setDefaultFont(font);
  copy->print(&printer);
}

}  // namespace tavimor
