#pragma once

#include <QColor>
#include <QPalette>

namespace tavimor {

/// The colours of a picture.
struct Theme {
  QColor background, text, grid, shade;
  QColor given, contour, warning;
  bool isDark = false;

  /// Of the curves of a family one by one, in colours that the colour-blind tell apart.
  /// Source: Okabe and Ito, Color Universal Design, 2008.
  QColor curve(std::size_t number) const;
};

Theme screenTheme(const QPalette& palette);
Theme paperTheme();

}  // namespace tavimor
