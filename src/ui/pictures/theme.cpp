#include "ui/pictures/theme.h"

#include <array>

namespace tavimor {

namespace {

constexpr int kDark = 128;  // of 0..255: a background below it

QColor mixed(const QColor& a, const QColor& b, double share) {
  const auto part = [&](int ofA, int ofB) { return static_cast<int>(ofA + share * (ofB - ofA)); };
  return {part(a.red(), b.red()), part(a.green(), b.green()), part(a.blue(), b.blue())};
}

Theme themeOf(const QColor& background, const QColor& text) {
  Theme theme;
  theme.background = background;
  theme.text = text;
  theme.grid = mixed(background, text, 0.15);
  theme.shade = mixed(background, text, 0.07);
  theme.contour = QColor(255, 255, 255, 200);
  theme.given = text;
  theme.isDark = background.lightness() < kDark;
  theme.warning = theme.isDark ? QColor(255, 150, 90) : QColor(213, 94, 0);
  return theme;
}

}  // namespace

QColor Theme::curve(std::size_t number) const {
  static const std::array<QColor, 6> kOnLight{QColor(0, 114, 178),   QColor(213, 94, 0),  QColor(0, 158, 115),
                                              QColor(204, 121, 167), QColor(150, 110, 0), QColor(86, 180, 233)};
  static const std::array<QColor, 6> kOnDark{QColor(86, 180, 233),  QColor(230, 159, 0),  QColor(0, 190, 140),
                                             QColor(224, 150, 190), QColor(240, 228, 66), QColor(255, 130, 70)};
  return (isDark ? kOnDark : kOnLight)[number % kOnLight.size()];
}

Theme screenTheme(const QPalette& palette) {
  return themeOf(palette.color(QPalette::Base), palette.color(QPalette::WindowText));
}

Theme paperTheme() { return themeOf(Qt::white, Qt::black); }

}  // namespace tavimor
