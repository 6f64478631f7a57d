#include <QFileInfo>

#include "report/listing.h"
#include "report/report_lines.h"
#include "ui/main_window/frmTavimor.h"

namespace tavimor {

namespace {

/// While it lives the printer has the report's font. What is left of a document when it goes is given up.
class ReportOnPrinter {
 public:
  explicit ReportOnPrinter(Printer& printer) : printer_(printer), fontName_(printer.FontName) {
    printer_.FontName = "Courier New";
  }
  ReportOnPrinter(const ReportOnPrinter&) = delete;
  ReportOnPrinter& operator=(const ReportOnPrinter&) = delete;
  ~ReportOnPrinter() {
    printer_.KillDoc();
    printer_.FontName = fontName_;
  }

 private:
  Printer& printer_;
  std::string fontName_;
};

std::string documentName(const std::string& fileName) {
  return fileName.empty() ? "Tavimor" : QFileInfo(QString::fromStdString(fileName)).fileName().toStdString();
}

}  // namespace

void frmTavimor::mnuPrint_Click() {
  const ReportOnPrinter report(printer);
  CaptureSpecs();
  printer.DocumentName = documentName(model_.FileName);
  printer.TermIndent = kTermColumn - 1;
  if (cdbFile.ShowPrinter(printer.device()) == DialogEnd::Cancelled) return;
  reportLines(model_, model_, [this](const std::string& line) { printer.Print(line); });
  printer.EndDoc();
}

}  // namespace tavimor
