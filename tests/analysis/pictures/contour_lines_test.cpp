#include "analysis/pictures/contour_lines.h"

#include <gmock/gmock.h>

#include <cmath>

namespace tavimor {
namespace {

using testing::DoubleEq;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

template <class Function>
Sheet sheetOf(int columns, int rows, Function f) {
  Sheet sheet;
  for (int i = 0; i < columns; ++i) sheet.x.push_back(-1.0 + 2.0 * i / (columns - 1));
  for (int j = 0; j < rows; ++j) sheet.y.push_back(-1.0 + 2.0 * j / (rows - 1));
  for (const double y : sheet.y)
    for (const double x : sheet.x) sheet.values.push_back(f(x, y));
  return sheet;
}

std::vector<ContourLine> linesAt(const Sheet& sheet, double level) { return contourLines(sheet, {&level, 1}); }

TEST(ContourLines, OfAPlaneAreStraightAndWhereTheLevelIs) {
  const auto lines = linesAt(sheetOf(5, 7, [](double x, double y) { return 2 * x + y; }), 0.3);
  ASSERT_THAT(lines, SizeIs(1));
  EXPECT_FALSE(lines[0].isClosed());
  for (std::size_t n = 0; n < lines[0].x.size(); ++n) EXPECT_NEAR(2 * lines[0].x[n] + lines[0].y[n], 0.3, 1e-14);
}

TEST(ContourLines, OfAHillAreOneRing) {
  const auto lines = linesAt(sheetOf(81, 81, [](double x, double y) { return -x * x - y * y; }), -0.49);
  ASSERT_THAT(lines, SizeIs(1));
  EXPECT_TRUE(lines[0].isClosed());
  for (std::size_t n = 0; n < lines[0].x.size(); ++n) EXPECT_NEAR(std::hypot(lines[0].x[n], lines[0].y[n]), 0.7, 5e-4);
}

TEST(ContourLines, ASaddleIsDividedAsItsMiddleSays) {
  const auto saddle = [](double ridge) {
    Sheet sheet{{0, 1}, {0, 1}, {ridge, -1, -1, ridge}};
    return linesAt(sheet, 0.0);
  };
  const auto apart = saddle(0.5), joined = saddle(2.0);
  ASSERT_THAT(apart, SizeIs(2));
  ASSERT_THAT(joined, SizeIs(2));
  // From the left side to the lower one, or to the upper one.
  EXPECT_THAT(apart[0].x, ElementsAre(0.0, DoubleEq(1.0 / 3.0)));
  EXPECT_THAT(apart[0].y, ElementsAre(DoubleEq(1.0 / 3.0), 0.0));
  EXPECT_THAT(joined[0].x, ElementsAre(0.0, DoubleEq(1.0 / 3.0)));
  EXPECT_THAT(joined[0].y, ElementsAre(DoubleEq(2.0 / 3.0), 1.0));
}

TEST(ContourLines, CrossTheRimWhereTheLevelIs) {
  const auto lines = linesAt(sheetOf(21, 21, [](double x, double y) { return x * y; }), 0.25);
  ASSERT_THAT(lines, SizeIs(2));
  for (const ContourLine& line : lines) {
    EXPECT_NEAR(std::fabs(line.x.front() * line.y.front()), 0.25, 1e-12);
    EXPECT_NEAR(std::max(std::fabs(line.x.front()), std::fabs(line.y.front())), 1.0, 1e-15);
  }
}

TEST(ContourLines, CellsWithANumberThatIsNoneHaveNone) {
  Sheet sheet = sheetOf(3, 3, [](double x, double) { return x; });
  sheet.values[4] = NAN;
  EXPECT_THAT(linesAt(sheet, 0.5), IsEmpty());
}

TEST(ContourLines, ALevelThatIsNotReachedHasNone) {
  EXPECT_THAT(linesAt(sheetOf(9, 9, [](double x, double) { return x; }), 1.5), IsEmpty());
  EXPECT_THAT(linesAt(sheetOf(9, 9, [](double, double) { return 1.0; }), 1.0), IsEmpty());
}

TEST(ContourLines, ValuesMayBeOfAnySize) {
  for (const double size : {1e300, 1e-300}) {
    const auto lines = linesAt(sheetOf(9, 9, [&](double x, double) { return size * x; }), 0.3 * size);
    ASSERT_THAT(lines, SizeIs(1)) << size;
    for (const double x : lines[0].x) EXPECT_NEAR(x, 0.3, 1e-12);
  }
}

TEST(ContourLines, ASheetOfOneLineHasNone) { EXPECT_THAT(linesAt(Sheet{{0, 1}, {0}, {0, 1}}, 0.5), IsEmpty()); }

}  // namespace
}  // namespace tavimor
