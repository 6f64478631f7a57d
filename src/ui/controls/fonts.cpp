#include "ui/controls/fonts.h"

#include <QApplication>

namespace tavimor {

namespace {

QFont fontOf(const QStringList& families) {
  QFont font = QApplication::font();
  font.setFamilies(families);
  return font;
}

}  // namespace

QFont sansSerifFont() {
#ifdef Q_OS_WIN
  // MS Sans Serif itself is drawn in pixels there, for two sizes of letters.
  return fontOf({QStringLiteral("Microsoft Sans Serif"), QStringLiteral("Arial"), QStringLiteral("Liberation Sans")});
#else
  return fontOf(
      {QStringLiteral("MS Sans Serif"), QStringLiteral("Microsoft Sans Serif"), QApplication::font().family()});
#endif
}

QFont verdanaFont() {
  return fontOf({QStringLiteral("Verdana"), QStringLiteral("DejaVu Sans"), QApplication::font().family()});
}

QFont fixedPitchFont() {
  QFont font = fontOf({QStringLiteral("Courier New"), QStringLiteral("Liberation Mono"),
                       QStringLiteral("DejaVu Sans Mono"), QStringLiteral("Menlo"), QStringLiteral("monospace")});
  font.setStyleHint(QFont::Monospace);
  font.setFixedPitch(true);
  return font;
}

}  // namespace tavimor
