#pragma once

#include <QFont>
#include <QList>
#include <QStringList>

#include "ui/controls/printing/line_layout.h"

class QPagedPaintDevice;
class QPrinter;

namespace tavimor {

/// The font of this name, or its substitute of fixed pitch, in the largest size in which 80 columns fit the printable
/// width of the device, in tenths of a point up to 10.
QFont printedFont(const QString& name, QPaintDevice& device);

/// Lines on the pages of a device, flowing from one to the next between the margins. Empty lines at the end take no
/// page of their own. Long lines are wrapped beside `termIndent` (see LineLayout).
class LinePages {
 public:
  LinePages(const QStringList& lines, const QString& fontName, int termIndent, QPagedPaintDevice& device);

  int count() const;

  /// Paints the pages of these indices, in this order, and ends the painting. False where the device refuses.
  bool paint(const QList<int>& pages);

 private:
  void paintPage(QPainter& painter, int page) const;

  QPagedPaintDevice& device_;
  QFont font_;
  LineLayout layout_;
  QStringList lines_;
  int linesPerPage_;
};

/// The pages that a printer asks for, each by its index, in the order in which they go to it: the chosen range, the
/// last one first where that is chosen, and as often as the printer does not repeat them by itself.
QList<int> chosenPages(int count, const QPrinter& printer);

}  // namespace tavimor
