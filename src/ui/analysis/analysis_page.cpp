#include "ui/analysis/analysis_page.h"

#include <QApplication>

namespace tavimor {

namespace {

// Every colour as if disabled: what is grey can still be scrolled, selected and copied.
QPalette greyed(QPalette palette) {
  for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive})
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
      palette.setColor(group, role, palette.color(QPalette::Disabled, role));
  return palette;
}

}  // namespace

AnalysisPage::AnalysisPage(const QString& name, const QString& title) : title_(title) { setObjectName(name); }

void AnalysisPage::setGrey(bool isGrey) { setPalette(isGrey ? greyed(QApplication::palette()) : QPalette()); }

}  // namespace tavimor
