#include "ui/controls/help/help_print.h"

#include <QPrinter>
#include <memory>

#include "ui/controls/printing/print_dialog.h"

namespace tavimor {

void printHelp(const QTextDocument& document, const QString& title) {
  QPrinter printer(QPrinter::HighResolution);
  printer.setDocName(title);
  if (choosePrinter(printer) == DialogEnd::Cancelled) return;

  constexpr double kPointsOnPaper = 10;
  const std::unique_ptr<QTextDocument> copy(document.clone());
  QFont font = copy->defaultFont();
  font.setPointSizeF(kPointsOnPaper);
  copy->setDefaultFont(font);
  copy->print(&printer);
}

}  // namespace tavimor
