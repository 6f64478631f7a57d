#include "ui/controls/help/help_style.h"

#include <QStringList>

#include "ui/controls/fonts.h"

namespace tavimor {

namespace {

// Indents in steps of the document's indent width: unlike margins these keep their size on a printer.
constexpr char kStyle[] = R"(
  p, li { line-height: 125%; }
  p { margin-top: 6px; margin-bottom: 6px; }
  a { color: %2; }
  h1 { color: %3; margin-top: 30px; margin-bottom: 10px; }
  h2 { color: %3; margin-top: 22px; margin-bottom: 6px; }
  h3 { margin-top: 16px; margin-bottom: 4px; }
  code, pre, kbd { font-family: %1; }
  pre { margin-top: 8px; margin-bottom: 8px; -qt-block-indent: 1; white-space: pre-wrap; }
  kbd { font-weight: bold; }
  table { border: 1px solid %4; border-collapse: collapse; margin-top: 8px; margin-bottom: 12px; }
  td, th { border: 1px solid %4; padding: 4px 8px; }
  th { background-color: %5; text-align: left; }
  .note td { background-color: %6; }
  .formula { margin-top: 8px; margin-bottom: 8px; -qt-block-indent: 1; }
  .caption { color: %7; }
)";

struct Colours {
  QLatin1String link, heading, border, tableHead, note, caption;
};

const Colours kOnLight{QLatin1String("#0b4fa8"), QLatin1String("#123a63"), QLatin1String("#a8a8a8"),
                       QLatin1String("#e8edf3"), QLatin1String("#fdf4dc"), QLatin1String("#555555")};
const Colours kOnDark{QLatin1String("#8ab8f0"), QLatin1String("#b4d2f4"), QLatin1String("#6a6a6a"),
                      QLatin1String("#2f3a47"), QLatin1String("#453c22"), QLatin1String("#b0b0b0")};

QString quotedFamilies(const QStringList& families) {
  QStringList quoted;
  for (const QString& family : families) quoted << QLatin1Char('"') + family + QLatin1Char('"');
  return quoted.join(QStringLiteral(", "));
}

}  // namespace

QString helpStyleSheet(Ground ground) {
  const Colours& of = ground == Ground::Light ? kOnLight : kOnDark;
  return QString::fromLatin1(kStyle).arg(quotedFamilies(fixedPitchFont().families()), of.link, of.heading, of.border,
                                         of.tableHead, of.note, of.caption);
}

}  // namespace tavimor
