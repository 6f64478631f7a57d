#pragma once

#include <QString>
#include <string>
#include <vector>

namespace tavimor {

/// A page of a printed PDF file, rebuilt from the place of every word: line n is row n of the page, and column c of it
/// stands c pitches right of the margin. In points.
struct PrintedPage {
  double width = 0;
  double height = 0;
  double pitch = 0;
  double rowHeight = 0;
  double leftmost = 0, rightmost = 0, topmost = 0, bottommost = 0;  // of all words
  std::vector<std::string> lines;                                   // up to the last one that is not empty

  int rowsThatFit() const;
};

struct PrintedPdf {
  std::string title;
  std::vector<PrintedPage> pages;

  /// The lines of all pages, one after the other.
  std::vector<std::string> lines() const;
};

/// Reads a PDF with pdftotext (poppler-utils); a test fails where that is missing.
PrintedPdf readPdf(const QString& path);

/// The lines without the blanks at their ends and the empty ones at the end, as paper shows them.
std::vector<std::string> onPaper(std::vector<std::string> lines);

}  // namespace tavimor
