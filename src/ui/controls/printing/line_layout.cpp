#include "ui/controls/printing/line_layout.h"

#include <QPaintDevice>
#include <QTextBoundaryFinder>
#include <algorithm>

namespace tavimor {

namespace {

constexpr QChar kBlank = u' ';
constexpr int kContinuation = 2;  // columns right of where terms begin

QString withoutTrailingBlanks(const QString& line) {
  qsizetype length = line.size();
  while (length > 0 && line[length - 1] == kBlank) --length;
  return line.left(length);
}

qsizetype leadingBlanks(const QString& line) {
  qsizetype count = 0;
  while (count < line.size() && line[count] == kBlank) ++count;
  return count;
}

// A column is one character, which can be two units of the string.
qsizetype columns(QStringView text) {
  return text.size() - std::count_if(text.begin(), text.end(), [](QChar c) { return c.isLowSurrogate(); });
}

// Where the text ends that begins here: before two blanks in a row, or with the line.
qsizetype endOfRun(const QString& line, qsizetype start) {
  const qsizetype gap = line.indexOf(QStringLiteral("  "), start);
  return gap < 0 ? line.size() : gap;
}

// Where what a reader takes for one character ends, accents included.
QList<qsizetype> characterEnds(const QString& line) {
  QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, line);
  QList<qsizetype> ends;
  while (finder.toNextBoundary() >= 0) ends << finder.position();
  return ends;
}

// The best place to break a line behind `least` units and before or at `most`.
qsizetype breakBetween(const QString& line, qsizetype least, qsizetype most) {
  if (const qsizetype factor = line.lastIndexOf(u'*', most); factor > least) return factor;
  if (const qsizetype blank = line.lastIndexOf(kBlank, most - 1); blank >= least) return blank + 1;
  return most;
}

}  // namespace

LineLayout::LineLayout(const QFont& font, QPaintDevice& device, int termIndent)
    : metrics_(font, &device),
      pitch_(metrics_.horizontalAdvance(u'0')),
      width_(device.width()),
      termIndent_(termIndent) {}

QList<TextRun> LineLayout::runs(const QString& line) const {
  QList<TextRun> result;
  const QString text = withoutTrailingBlanks(line);
  qreal free = 0;  // where the next run can begin without touching the one before
  qsizetype column = 0;
  for (qsizetype at = 0; at < text.size();) {
    if (text[at] == kBlank) {
      ++at;
      ++column;
      continue;
    }
    const qsizetype end = endOfRun(text, at);
    const TextRun run{std::max(static_cast<qreal>(column) * pitch_, free), text.mid(at, end - at)};
    free = run.x + metrics_.horizontalAdvance(run.text) + pitch_;
    column += columns(run.text);
    at = end;
    result << run;
  }
  return result;
}

bool LineLayout::fits(const QString& line) const {
  const QList<TextRun> all = runs(line);
  return all.isEmpty() || all.last().x + metrics_.horizontalAdvance(all.last().text) <= width_;
}

QStringList LineLayout::wrapped(const QString& line) const {
  QStringList lines;
  QString rest = withoutTrailingBlanks(line);
  while (!fits(rest)) {
    const qsizetype length = lengthThatFits(rest);
    if (length == rest.size()) break;
    lines << withoutTrailingBlanks(rest.left(length));
    const QString remaining = rest.mid(length);
    rest = QString(termIndent_ + kContinuation, kBlank) + remaining.mid(leadingBlanks(remaining));
  }
  return lines << rest;
}

// At least one character that can be seen, however narrow the device: otherwise the rest would never become shorter.
qsizetype LineLayout::lengthThatFits(const QString& line) const {
  const qsizetype least = std::max<qsizetype>(termIndent_, leadingBlanks(line));
  const QList<qsizetype> ends = characterEnds(line);
  const auto first = std::upper_bound(ends.begin(), ends.end(), least);
  if (first == ends.end()) return line.size();
  const auto tooFar = std::partition_point(first, ends.end(), [&](qsizetype end) { return fits(line.left(end)); });
  return breakBetween(line, least, tooFar == first ? *first : *(tooFar - 1));
}

}  // namespace tavimor
