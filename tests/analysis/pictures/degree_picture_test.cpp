#include "analysis/pictures/degree_picture.h"

#include "analysis/pictures/pictured_test.h"

namespace tavimor {
namespace {

std::vector<DegreeCombination> combinationsOf(const ShownFit& fit) {
  const SecondOpinion& opinion = fit.analysis->opinion;
  return degreeMap(opinion.data, opinion.decomposition, centresOf(opinion.data));
}

TEST(DegreePicture, EveryCombinationIsAPointOnce) {
  const auto all = combinationsOf(*pictured(roughProblem(2, 9, 4)));
  const DegreePicture picture = degreePicture(all, 1);
  EXPECT_EQ(picture.best.size() + picture.beaten.size() + picture.leftOut, all.size());
  for (const DegreePoint& point : picture.best) {
    EXPECT_EQ(point.s, *all[point.number].statistics.s);
    EXPECT_EQ(point.terms, static_cast<double>(all[point.number].statistics.terms));
  }
  ASSERT_THAT(picture.recommended, SizeIs(1));
  EXPECT_TRUE(all[picture.recommended[0].number].recommended);
}

TEST(DegreePicture, TheBestDescendWithTheNumberOfCoefficients) {
  const auto all = combinationsOf(*pictured(roughProblem(3, 9, 3)));
  const DegreePicture picture = degreePicture(all, 2);
  for (std::size_t n = 1; n < picture.best.size(); ++n) {
    EXPECT_GT(picture.best[n].terms, picture.best[n - 1].terms);
    EXPECT_LT(picture.best[n].s, picture.best[n - 1].s);
  }
}

TEST(DegreePicture, OfTwoVariablesIsASheetOverBothDegrees) {
  const auto all = combinationsOf(*pictured(roughProblem(2, 9, 4)));
  const DegreePicture picture = degreePicture(all, 1);
  ASSERT_THAT(picture.sheet.x, SizeIs(5));
  for (const DegreeCombination& one : all)
    EXPECT_EQ(picture.sheet.at(one.degrees[0], one.degrees[1]), std::log10(*one.statistics.s));
  EXPECT_THAT(degreePicture(combinationsOf(*pictured(roughProblem(1))), 0).sheet.x, IsEmpty());
}

TEST(DegreePicture, SaysInWordsWhatIsRecommended) {
  const auto all = combinationsOf(*pictured(roughProblem(2, 9, 4)));
  EXPECT_THAT(degreePictureText(all, 1, degreePicture(all, 1)), HasSubstr("Recommended: "));
}

TEST(DegreePicture, OfOnePointSaysThatThereIsNothing) {
  Dimension model = test::problem({{"x", {5.0}, 0, 5.0}});
  const auto all = combinationsOf(*pictured(model));
  EXPECT_EQ(degreePicture(all, 0).notShown, "No combination of degrees has a standard deviation to show.");
}

}  // namespace
}  // namespace tavimor
