#include <gmock/gmock.h>

#include <cmath>

#include "analysis/degree_search.h"
#include "analysis/pictures/degree_picture.h"
#include "ui/support/picture_pages_test.h"

namespace tavimor {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::SizeIs;

class DrawnDegreesTest : public PicturePagesTest {
 protected:
  void openDegrees(const Dimension& problem) {
    openAt("pagDegrees", problem);
    EXPECT_TRUE(QTest::qWaitFor([] { return !picture().panels().empty(); }));
    draw();
  }

  const DegreeCombination& recommended() {
    search_ = DegreeSearcher(problemData(model), largestDegrees(model)).search();
    for (const DegreeCombination& one : search_.combinations)
      if (one.recommended) return one;
    throw std::runtime_error("nothing is recommended");
  }

  static double heightOf(const DegreeCombination& one) { return std::log10(one.statistics.s.value()); }

  DegreeSearch search_;
};

TEST_F(DrawnDegreesTest, ADoubleClickOnADotPutsItsDegreesIntoTheFields) {
  openDegrees(rough({9, 7}));
  const DegreeCombination& wanted = recommended();
  doubleClickAt(placeOf(static_cast<double>(wanted.statistics.terms), heightOf(wanted)));
  EXPECT_EQ(textOf("txtTerms(0)"), std::to_string(wanted.degrees[0]));
  EXPECT_EQ(textOf("txtTerms(1)"), std::to_string(wanted.degrees[1]));
}

TEST_F(DrawnDegreesTest, ADoubleClickOnAColourDoesTheSame) {
  openDegrees(rough({9, 7}));
  ASSERT_THAT(picture().panels(), SizeIs(2));
  doubleClickAt(placeOf(1, 3, 1));
  EXPECT_EQ(textOf("txtTerms(0)"), "1");
  EXPECT_EQ(textOf("txtTerms(1)"), "3");
}

TEST_F(DrawnDegreesTest, ADotThatIsClickedIsMarkedInBothPictures) {
  openDegrees(rough({9, 7}));
  clickAt(placeOf(2, 1, 1));
  EXPECT_THAT(marks().x, ElementsAre(6, 2));
}

TEST_F(DrawnDegreesTest, OtherNumbersOfVariablesHaveNoColours) {
  openDegrees(rough({5, 4, 5}));
  EXPECT_THAT(picture().panels(), SizeIs(1));
  EXPECT_THAT(words(), HasSubstr("combinations of degrees against their numbers of coefficients"));
}

}  // namespace
}  // namespace tavimor
