#include "ui/controls/printing/line_pages.h"

#include <QPainter>
#include <QPrinter>
#include <algorithm>

#include "ui/controls/fonts.h"

namespace tavimor {

namespace {

constexpr int kColumns = 80;
constexpr int kLargestFont = 100;  // tenths of a point

QStringList wrappedLines(const QStringList& lines, const LineLayout& layout) {
  QStringList wrapped;
  wrapped.reserve(lines.size());
  for (const QString& line : lines) wrapped += layout.wrapped(line);
  while (wrapped.size() > 1 && wrapped.last().isEmpty()) wrapped.removeLast();
  return wrapped;
}

QList<int> repeated(const QList<int>& pages, int copies, bool collated) {
  QList<int> result;
  if (collated)
    for (int copy = 0; copy < copies; ++copy) result += pages;
  else
    for (const int page : pages) result += QList<int>(copies, page);
  return result;
}

}  // namespace

QFont printedFont(const QString& name, QPaintDevice& device) {
  QFont font = fixedPitchFont();
  font.setFamilies(QStringList(name) + font.families());
  font.setHintingPreference(QFont::PreferNoHinting);  // a pitch that grows with the size
  font.setKerning(false);
  int tenths = kLargestFont;
  do font.setPointSizeF(tenths / 10.0);
  while (!LineLayout(font, device, 0).fits(QString(kColumns, u'0')) && --tenths > 0);
  return font;
}

LinePages::LinePages(const QStringList& lines, const QString& fontName, int termIndent, QPagedPaintDevice& device)
    : device_(device),
      font_(printedFont(fontName, device)),
      layout_(font_, device, termIndent),
      lines_(wrappedLines(lines, layout_)),
      linesPerPage_(std::max(1, static_cast<int>(device.height() / layout_.spacing()))) {}

int LinePages::count() const { return static_cast<int>((lines_.size() + linesPerPage_ - 1) / linesPerPage_); }

bool LinePages::paint(const QList<int>& pages) {
  QPainter painter;
  if (!painter.begin(&device_)) return false;
  painter.setFont(font_);
  painter.setLayoutDirection(Qt::LeftToRight);
  for (qsizetype n = 0; n < pages.size(); ++n) {
    if (n > 0 && !device_.newPage()) return false;
    paintPage(painter, pages[n]);
  }
  return painter.end();
}

void LinePages::paintPage(QPainter& painter, int page) const {
  qreal baseline = layout_.ascent();
  for (const QString& line : lines_.mid(qsizetype{page} * linesPerPage_, linesPerPage_)) {
    for (const TextRun& run : layout_.runs(line)) painter.drawText(QPointF(run.x, baseline), run.text);
    baseline += layout_.spacing();
  }
}

QList<int> chosenPages(int count, const QPrinter& printer) {
  const QPageRanges ranges = printer.pageRanges();
  QList<int> pages;
  for (int page = 0; page < count; ++page)
    if (ranges.isEmpty() || ranges.contains(page + 1)) pages << page;
  if (printer.pageOrder() == QPrinter::LastPageFirst) std::reverse(pages.begin(), pages.end());
  return printer.supportsMultipleCopies() ? pages : repeated(pages, printer.copyCount(), printer.collateCopies());
}

}  // namespace tavimor
