#pragma once

#include <QFontMetricsF>
#include <QList>
#include <QStringList>

class QPaintDevice;

namespace tavimor {

/// A run of text and where on its line it begins, in pixels of the device.
struct TextRun {
  qreal x = 0;
  QString text;
};

/// How lines stand in a font of fixed pitch on a device whose width is that of the printable area.
///
/// The text after two or more blanks begins in its own column. So letters that the font lacks, which come from another
/// font and can be wider, move nothing but what stands directly behind them.
///
/// A line that is wider than the device goes on in further ones, which begin two columns right of `termIndent`, the
/// columns left of the terms: the column of the coefficients holds nothing else. It is broken before the last "*" of a
/// term that fits, where there is none after a blank, and otherwise in the middle of a word; no visible character is
/// lost.
class LineLayout {
 public:
  LineLayout(const QFont& font, QPaintDevice& device, int termIndent);

  QStringList wrapped(const QString& line) const;
  QList<TextRun> runs(const QString& line) const;

  bool fits(const QString& line) const;
  qreal ascent() const { return metrics_.ascent(); }
  qreal spacing() const { return metrics_.lineSpacing(); }

 private:
  qsizetype lengthThatFits(const QString& line) const;

  QFontMetricsF metrics_;
  qreal pitch_;
  qreal width_;
  int termIndent_;
};

}  // namespace tavimor
