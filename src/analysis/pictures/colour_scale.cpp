#include "analysis/pictures/colour_scale.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tavimor {

namespace {

constexpr std::array<Colour, 11> kViridis{{{68, 1, 84},
                                           {72, 36, 117},
                                           {65, 68, 135},
                                           {53, 95, 141},
                                           {42, 120, 142},
                                           {33, 145, 140},
                                           {34, 168, 132},
                                           {68, 191, 112},
                                           {122, 209, 81},
                                           {189, 223, 38},
                                           {253, 231, 37}}};

constexpr std::array<Colour, 11> kBlueToRed{{{5, 48, 97},
                                             {33, 102, 172},
                                             {67, 147, 195},
                                             {146, 197, 222},
                                             {209, 229, 240},
                                             {247, 247, 247},
                                             {253, 219, 199},
                                             {244, 165, 130},
                                             {214, 96, 77},
                                             {178, 24, 43},
                                             {103, 0, 31}}};

unsigned char mixed(unsigned char a, unsigned char b, double share) {
  return static_cast<unsigned char>(std::lround(a + share * (b - a)));
}

}  // namespace

std::span<const Colour> colourStops(ColourScale scale) {
  return scale == ColourScale::Values ? std::span<const Colour>(kViridis) : std::span<const Colour>(kBlueToRed);
}

Colour colourAt(ColourScale scale, double share) {
  const std::span<const Colour> stops = colourStops(scale);
  const double place = std::clamp(share, 0.0, 1.0) * static_cast<double>(stops.size() - 1);
  const std::size_t below = std::min(static_cast<std::size_t>(place), stops.size() - 2);
  const double rest = place - static_cast<double>(below);
  const Colour &a = stops[below], &b = stops[below + 1];
  return {mixed(a.red, b.red, rest), mixed(a.green, b.green, rest), mixed(a.blue, b.blue, rest)};
}

ColourRange colourRange(ColourScale scale, std::span<const double> values) {
  ColourRange range{INFINITY, -INFINITY};
  for (const double value : values)
    if (std::isfinite(value)) range = {std::min(range.least, value), std::max(range.largest, value)};
  if (range.least > range.largest) return {};
  if (scale == ColourScale::Deviations) {
    const double most = std::max(std::fabs(range.least), std::fabs(range.largest));
    range = {-most, most};
  }
  if (range.least < range.largest) return range;
  const double margin = range.least == 0.0 ? 1.0 : std::fabs(range.least) / 2;
  return {range.least - margin, range.largest + margin};
}

}  // namespace tavimor
