#pragma once

#include <QStringList>
#include <memory>
#include <string>

class QPrinter;

namespace tavimor {

/// The printer, and the document of plain lines that is on its way to it.
///
/// A document is printed when it ends, and only then: one that is given up in the middle leaves neither a sheet nor a
/// file. Its lines flow onto pages of the paper, orientation and margins of device(), in the font FontName, whose size
/// lets 80 columns fit the printable width (see line_pages.h); a longer line is wrapped (see line_layout.h). There are
/// no headers, footers or page breaks besides those where a page is full.
class Printer {
 public:
  Printer();
  Printer(const Printer&) = delete;
  Printer& operator=(const Printer&) = delete;
  ~Printer();

  std::string FontName;      // at first the font of the windows
  std::string DocumentName;  // what the print queue shows
  int TermIndent = 0;        // columns left of where terms begin, beside which a long line goes on

  /// Adds a line to the document.
  void Print(const std::string& line);

  /// Prints the document, of which nothing is kept. A PDF file is written in full or not at all. Where none of the
  /// pages that were chosen in the dialog exists, the user is told so and nothing is printed.
  /// Errors: PrinterError, with the name of the printer or the path of the file.
  void EndDoc();

  /// Gives up the document.
  void KillDoc();

  /// The printer, paper, margins and pages that the print dialog shows and sets. Made at the first call, as the system
  /// then looks for printers: the default printer, or a PDF file where there is none, with margins of 20 mm.
  QPrinter& device();

 private:
  void printToFile(const QStringList& lines);
  void printToQueue(const QStringList& lines);

  std::unique_ptr<QPrinter> device_;
  QStringList lines_;
};

}  // namespace tavimor
