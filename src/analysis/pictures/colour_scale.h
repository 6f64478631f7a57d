#pragma once

#include <span>

namespace tavimor {

struct Colour {
  unsigned char red = 0, green = 0, blue = 0;
  bool operator==(const Colour&) const = default;
};

/// Which colours stand for numbers. Both kinds can be told apart by those who do not tell red from green, and one of
/// them in grey too.
enum class ColourScale {
  Values,     // viridis: from dark to light
  Deviations  // blue below 0, white at 0, red above
};

/// The colours at equal distances from the least number to the largest one; between them they are mixed linearly.
/// Sources: Smith and van der Walt, the viridis colour map, 2015 (CC0), every tenth of it; Brewer, ColorBrewer 2.0,
/// scheme RdBu.
std::span<const Colour> colourStops(ColourScale scale);

/// The colour at a share 0..1 of the way; what is beyond takes the colour of the end.
Colour colourAt(ColourScale scale, double share);

/// The numbers that the ends of a scale stand for: for deviations they are equally far from 0.
struct ColourRange {
  double least = 0.0, largest = 0.0;
};

/// Of the finite ones among the values; for equal ones a range about them. Nothing finite: 0 and 0.
ColourRange colourRange(ColourScale scale, std::span<const double> values);

}  // namespace tavimor
