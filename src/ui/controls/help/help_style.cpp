#include "ui/controls/help/help_style.h"

#include <QStringList>

#include "ui/controls/fonts.h"

namespace tavimor {

namespace {

// Indents in steps of the document's indent width: unlike margins these keep their size on a printer.
constexpr char kStyle[] = R"(
  p, li { line-height: 125%; }
  p { margin-top: 6px; margin-bottom: 6px; }
  a { color: #0b4fa8; }
  h1 { color: #123a63; margin-top: 30px; margin-bottom: 10px; }
  h2 { color: #123a63; margin-top: 22px; margin-bottom: 6px; }
  h3 { margin-top: 16px; margin-bottom: 4px; }
  code, pre { font-family: %1; }
  pre { margin-top: 8px; margin-bottom: 8px; -qt-block-indent: 1; }
  kbd { font-weight: bold; }
  table { border: 1px solid #a8a8a8; border-collapse: collapse; margin-top: 8px; margin-bottom: 12px; }
  td, th { border: 1px solid #a8a8a8; padding: 4px 8px; }
  th { background-color: #e8edf3; text-align: left; }
  .note td { background-color: #fdf4dc; }
  .formula { margin-top: 8px; margin-bottom: 8px; -qt-block-indent: 1; }
  .caption { color: #555555; }
)";

QString quotedFamilies(const QStringList& families) {
  QStringList quoted;
  for (const QString& family : families) quoted << QLatin1Char('"') + family + QLatin1Char('"');
  return quoted.join(QStringLiteral(", "));
}

}  // namespace

QString helpStyleSheet() { return QString::fromLatin1(kStyle).arg(quotedFamilies(fixedPitchFont().families())); }

}  // namespace tavimor
