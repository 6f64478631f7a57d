#include "ui/controls/printing/print_dialog.h"

#include <QApplication>
#include <QPrintDialog>
#include <QPrinter>
#ifdef Q_OS_WIN
#include <QFileDialog>
#include <QPrinterInfo>
#endif

namespace tavimor {

namespace {

/// Where a printer prints to. A print dialog sets it already while it is made and while the user looks around.
class PrintTarget {
 public:
  explicit PrintTarget(QPrinter& printer)
      : printer_(printer),
        format_(printer.outputFormat()),
        name_(printer.printerName()),
        file_(printer.outputFileName()),
        layout_(printer.pageLayout()) {}

  void putBack() {
    if (format_ == QPrinter::PdfFormat) {
      printer_.setOutputFormat(format_);
      printer_.setOutputFileName(file_);
    } else {
      printer_.setPrinterName(name_);
    }
    printer_.setPageLayout(layout_);
  }

 private:
  QPrinter& printer_;
  QPrinter::OutputFormat format_;
  QString name_;
  QString file_;
  QPageLayout layout_;
};

#ifdef Q_OS_WIN
// The dialog of Windows knows printers alone, so a system without one is asked for a file.
DialogEnd choosePdf(QPrinter& printer) {
  QFileDialog dialog(QApplication::activeWindow(), QStringLiteral("Print to PDF"));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setNameFilter(QStringLiteral("PDF (*.pdf)"));
  dialog.setDefaultSuffix(QStringLiteral("pdf"));
  dialog.selectFile(printer.docName());
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return DialogEnd::Cancelled;
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(dialog.selectedFiles().constFirst());
  return DialogEnd::Confirmed;
}
#endif

}  // namespace

DialogEnd choosePrinter(QPrinter& printer) {
  printer.setPageRanges({});
  printer.setPrintRange(QPrinter::AllPages);
  printer.setCopyCount(1);
#ifdef Q_OS_WIN
  if (QPrinterInfo::availablePrinterNames().isEmpty()) return choosePdf(printer);
  printer.setOutputFormat(QPrinter::NativeFormat);
#endif
  PrintTarget before(printer);
  QPrintDialog dialog(&printer, QApplication::activeWindow());
  before.putBack();
  if (dialog.exec() == QDialog::Accepted) return DialogEnd::Confirmed;
  before.putBack();
  return DialogEnd::Cancelled;
}

}  // namespace tavimor
