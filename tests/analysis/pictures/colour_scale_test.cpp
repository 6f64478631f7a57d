#include "analysis/pictures/colour_scale.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace tavimor {
namespace {

// How light a colour is for an eye. Source: ITU-R BT.709.
double lightness(const Colour& colour) { return 0.2126 * colour.red + 0.7152 * colour.green + 0.0722 * colour.blue; }

TEST(ColourScale, TheEndsHaveTheColoursOfTheScale) {
  EXPECT_EQ(colourAt(ColourScale::Values, 0.0), (Colour{68, 1, 84}));
  EXPECT_EQ(colourAt(ColourScale::Values, 1.0), (Colour{253, 231, 37}));
  EXPECT_EQ(colourAt(ColourScale::Values, -1.0), colourAt(ColourScale::Values, 0.0));
  EXPECT_EQ(colourAt(ColourScale::Values, 2.0), colourAt(ColourScale::Values, 1.0));
}

TEST(ColourScale, BetweenTwoStopsTheColourIsMixed) {
  EXPECT_EQ(colourAt(ColourScale::Values, 0.05), (Colour{70, 19, 101}));
}

TEST(ColourScale, ValuesGetLighterAllTheWaySoThatGreyPrintsTellThemApart) {
  for (double share = 0.0; share < 0.995; share += 0.01)
    EXPECT_LT(lightness(colourAt(ColourScale::Values, share)), lightness(colourAt(ColourScale::Values, share + 0.01)))
        << share;
}

TEST(ColourScale, DeviationsAreBlueBelowZeroWhitishAtItAndRedAbove) {
  const Colour below = colourAt(ColourScale::Deviations, 0.1), above = colourAt(ColourScale::Deviations, 0.9);
  EXPECT_GT(below.blue, below.red);
  EXPECT_GT(above.red, above.blue);
  EXPECT_EQ(colourAt(ColourScale::Deviations, 0.5), (Colour{247, 247, 247}));
}

TEST(ColourScale, TheRangeOfValuesIsThatOfTheFiniteOnes) {
  const std::vector<double> values{2.0, NAN, -1.0, INFINITY};
  const ColourRange range = colourRange(ColourScale::Values, values);
  EXPECT_EQ(range.least, -1.0);
  EXPECT_EQ(range.largest, 2.0);
}

TEST(ColourScale, TheRangeOfDeviationsIsCentredOnZero) {
  const std::vector<double> values{0.5, -2.0};
  const ColourRange range = colourRange(ColourScale::Deviations, values);
  EXPECT_EQ(range.least, -2.0);
  EXPECT_EQ(range.largest, 2.0);
}

TEST(ColourScale, EqualValuesHaveARangeAboutThem) {
  for (const double value : {0.0, 5.0, -1e300, 1e-300}) {
    const ColourRange range = colourRange(ColourScale::Values, std::vector<double>{value, value});
    EXPECT_LT(range.least, value);
    EXPECT_GT(range.largest, value);
  }
}

TEST(ColourScale, WithoutAFiniteValueThereIsNoRange) {
  const ColourRange range = colourRange(ColourScale::Values, std::vector<double>{NAN});
  EXPECT_EQ(range.least, range.largest);
}

}  // namespace
}  // namespace tavimor
