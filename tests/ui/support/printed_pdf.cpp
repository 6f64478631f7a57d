#include "ui/support/printed_pdf.h"

#include <gtest/gtest.h>

#include <QProcess>
#include <QXmlStreamReader>
#include <algorithm>
#include <cmath>

#include "runtime/text.h"

namespace tavimor {

namespace {

constexpr double kMargin = 20 / 25.4 * 72;  // 20 mm

struct Word {
  std::string text;
  double left, right, top, bottom;
};

QByteArray boundingBoxes(const QString& path) {
  QProcess pdftotext;
  pdftotext.start(QStringLiteral("pdftotext"), {QStringLiteral("-bbox"), path, QStringLiteral("-")});
  EXPECT_TRUE(pdftotext.waitForFinished())
      << "pdftotext (poppler-utils) is needed: " << pdftotext.errorString().toStdString();
  EXPECT_EQ(pdftotext.exitCode(), 0) << pdftotext.readAllStandardError().toStdString();
  return pdftotext.readAllStandardOutput();
}

double number(const QXmlStreamReader& xml, const char* attribute) {
  return xml.attributes().value(QLatin1String(attribute)).toDouble();
}

// From the longest word of plain letters: others may come from another font.
void measureFont(PrintedPage& page, const std::vector<Word>& words) {
  std::size_t longest = 0;
  for (const Word& word : words) {
    const bool isPlain = std::all_of(word.text.begin(), word.text.end(), [](char c) { return c > 0; });
    if (!isPlain || word.text.size() <= longest) continue;
    longest = word.text.size();
    page.pitch = (word.right - word.left) / static_cast<double>(longest);
    page.rowHeight = word.bottom - word.top;
  }
}

void measureExtent(PrintedPage& page, const std::vector<Word>& words) {
  page.leftmost = page.width;
  page.topmost = page.height;
  for (const Word& word : words) {
    page.leftmost = std::min(page.leftmost, word.left);
    page.rightmost = std::max(page.rightmost, word.right);
    page.topmost = std::min(page.topmost, word.top);
    page.bottommost = std::max(page.bottommost, word.bottom);
  }
}

void place(PrintedPage& page, const Word& word) {
  const auto row = static_cast<std::size_t>(std::lround((word.top - kMargin) / page.rowHeight));
  const auto column = static_cast<std::size_t>(std::lround((word.left - kMargin) / page.pitch));
  if (page.lines.size() <= row) page.lines.resize(row + 1);
  std::string& line = page.lines[row];
  const std::size_t length = characterCount(line);
  EXPECT_LE(length, column) << word.text << " stands over " << line;
  line += std::string(column - std::min(column, length), ' ') + word.text;
}

void finish(PrintedPage& page, std::vector<Word>& words) {
  if (words.empty()) return;
  measureFont(page, words);
  measureExtent(page, words);
  std::stable_sort(words.begin(), words.end(), [](const Word& a, const Word& b) { return a.left < b.left; });
  for (const Word& word : words) place(page, word);
  words.clear();
}

}  // namespace

int PrintedPage::rowsThatFit() const { return static_cast<int>((height - 2 * kMargin) / rowHeight); }

std::vector<std::string> PrintedPdf::lines() const {
  std::vector<std::string> all;
  for (const PrintedPage& page : pages) {
    if (&page != pages.data()) all.resize((&page - pages.data()) * pages[0].rowsThatFit());
    all.insert(all.end(), page.lines.begin(), page.lines.end());
  }
  return all;
}

PrintedPdf readPdf(const QString& path) {
  PrintedPdf pdf;
  std::vector<Word> words;
  QXmlStreamReader xml(boundingBoxes(path));
  while (!xml.atEnd()) {
    const auto token = xml.readNext();
    if (token == QXmlStreamReader::EndElement && xml.name() == QLatin1String("page")) finish(pdf.pages.back(), words);
    if (token != QXmlStreamReader::StartElement) continue;
    if (xml.name() == QLatin1String("title")) pdf.title = xml.readElementText().toStdString();
    if (xml.name() == QLatin1String("page")) {
      pdf.pages.emplace_back();
      pdf.pages.back().width = number(xml, "width");
      pdf.pages.back().height = number(xml, "height");
    }
    if (xml.name() == QLatin1String("word")) {
      Word word{{}, number(xml, "xMin"), number(xml, "xMax"), number(xml, "yMin"), number(xml, "yMax")};
      word.text = xml.readElementText().toStdString();
      words.push_back(word);
    }
  }
  EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
  return pdf;
}

std::vector<std::string> onPaper(std::vector<std::string> lines) {
  for (std::string& line : lines) line.erase(line.find_last_not_of(' ') + 1);
  while (!lines.empty() && lines.back().empty()) lines.pop_back();
  return lines;
}

}  // namespace tavimor
