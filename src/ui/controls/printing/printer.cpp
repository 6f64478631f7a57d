#include "ui/controls/printing/printer.h"

#include <QApplication>
#include <QFileInfo>
#include <QLocale>
#include <QPdfWriter>
#include <QPrinter>
#include <QSaveFile>
#include <algorithm>
#include <utility>

#include "runtime/run_time_error.h"
#include "ui/controls/message_box.h"
#include "ui/controls/printing/line_pages.h"
#include "ui/controls/printing/print_queue.h"
#include "ui/controls/wait_pointer.h"

namespace tavimor {

namespace {

constexpr QMarginsF kMargins(20, 20, 20, 20);  // millimetres: 80 columns of 10 points are 169 mm, A4 leaves 170

RunTimeError printerError(const QString& where) { return RunTimeError(ErrorNumber::PrinterError, where.toStdString()); }

// A line break or a tab in a name would move what follows it.
QString onOneLine(QString line) {
  std::replace_if(
      line.begin(), line.end(), [](QChar c) { return c.category() == QChar::Other_Control; }, u' ');
  return line;
}

// A printer knows its paper, a file has that of the country.
QPageSize::PageSizeId paperOfTheCountry() {
  return QLocale::system().measurementSystem() == QLocale::ImperialUSSystem ? QPageSize::Letter : QPageSize::A4;
}

// The pages to paint; empty, once the user has been told, where none of those chosen exists.
QList<int> existingPages(const LinePages& pages, const QPrinter& printer) {
  QList<int> chosen = chosenPages(pages.count(), printer);
  if (chosen.isEmpty())
    showWarning(
        QStringLiteral("Nothing is printed: the report has no page of those chosen, only 1 to %1.").arg(pages.count()));
  return chosen;
}

bool paint(LinePages& pages, const QList<int>& chosen) {
  const WaitPointer hourglass;
  return pages.paint(chosen);
}

}  // namespace

Printer::Printer()
    : FontName(QApplication::font().family().toStdString()),
      DocumentName(QApplication::applicationName().toStdString()) {}

Printer::~Printer() = default;

QPrinter& Printer::device() {
  if (device_ == nullptr) {
    device_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
    if (device_->outputFormat() == QPrinter::PdfFormat) device_->setPageSize(QPageSize(paperOfTheCountry()));
    device_->setPageMargins(kMargins, QPageLayout::Millimeter);
    device_->setCreator(QApplication::applicationName());
  }
  device_->setDocName(QString::fromStdString(DocumentName));
  return *device_;
}

void Printer::Print(const std::string& line) { lines_ << onOneLine(QString::fromStdString(line)); }

void Printer::KillDoc() { lines_.clear(); }

void Printer::EndDoc() {
  const QStringList lines = std::exchange(lines_, {});
  if (lines.isEmpty()) return;
  if (device().outputFormat() == QPrinter::PdfFormat)
    printToFile(lines);
  else
    printToQueue(lines);
}

// Through a file beside it, which takes the name when it is complete; a device of the system is no file to replace.
void Printer::printToFile(const QStringList& lines) {
  const QPrinter& printer = device();
  const QString path = printer.outputFileName();
  QSaveFile file(path);
  if (const QFileInfo info(path); info.exists() && !info.isFile()) throw printerError(path);
  if (!file.open(QIODevice::WriteOnly)) throw printerError(path);
  QPdfWriter writer(&file);
  writer.setResolution(printer.resolution());
  writer.setPageLayout(printer.pageLayout());
  writer.setTitle(printer.docName());
  writer.setCreator(printer.creator());
  LinePages pages(lines, QString::fromStdString(FontName), TermIndent, writer);
  const QList<int> chosen = existingPages(pages, printer);
  if (chosen.isEmpty()) return;
  if (!paint(pages, chosen) || !file.commit()) throw printerError(path);
}

void Printer::printToQueue(const QStringList& lines) {
  QPrinter& printer = device();
  if (!printer.isValid()) throw printerError(printer.printerName());
  LinePages pages(lines, QString::fromStdString(FontName), TermIndent, printer);
  const QList<int> chosen = existingPages(pages, printer);
  if (chosen.isEmpty()) return;
  if (paint(pages, chosen) && queueTookLastJob()) return;
  printer.abort();
  throw printerError(printer.printerName());
}

}  // namespace tavimor
