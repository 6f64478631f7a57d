#include <gmock/gmock.h>

#include <QListView>

#include "analysis/pictures/residual_pictures.h"
#include "analysis/pictures/round_numbers.h"
#include "ui/support/picture_pages_test.h"

namespace tavimor {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::Eq;
using testing::HasSubstr;
using testing::SizeIs;

class ResidualsPageTest : public PicturePagesTest {
 protected:
  static QAbstractItemModel& largest() { return *inPage<QListView>("lstLargest").model(); }
  static std::string row(int number) { return largest().index(number, 0).data().toString().toStdString(); }
};

TEST_F(ResidualsPageTest, ShowsFourPictures) {
  openAt("pagResiduals", rough({9, 7}));
  EXPECT_THAT(picture().panels(), SizeIs(4));
  EXPECT_EQ(words(), residualText(*shownFit(), residualPictures(*shownFit())));
}

TEST_F(ResidualsPageTest, ListsTheLargestWithTheirGridPoints) {
  openAt("pagResiduals", rough({9, 7}));
  const auto fit = shownFit();
  const std::vector<std::size_t> wanted = residualPictures(*fit).largest;
  ASSERT_EQ(largest().rowCount(), std::ssize(wanted));
  for (int n = 0; n < largest().rowCount(); ++n) {
    const std::size_t number = wanted[static_cast<std::size_t>(n)];
    EXPECT_EQ(row(n), shortNumber(fit->residual.data()[number]) + " at " +
                          gridPointText(model, gridIndexAt(model.F.last(), number)));
  }
}

TEST_F(ResidualsPageTest, AChosenRowIsMarkedInEveryPictureOfPoints) {
  openAt("pagResiduals", rough({9, 7}));
  auto& list = inPage<QListView>("lstLargest");
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(largest().index(2, 0)).center());
  const auto fit = shownFit();
  const double residual = fit->residual.data()[residualPictures(*fit).largest[2]];
  EXPECT_THAT(marks().y, SizeIs(3));
  EXPECT_THAT(marks().y, Each(Eq(residual)));
}

TEST_F(ResidualsPageTest, ASecondClickOnARowOpensTheFunctionThere) {
  openAt("pagResiduals", rough({9, 7}));
  auto& list = inPage<QListView>("lstLargest");
  const QPoint place = list.visualRect(largest().index(1, 0)).center();
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place);
  QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, place);
  ASSERT_TRUE(model.StartIdx == gridIndexAt(model.F.last(), residualPictures(*shownFit()).largest[1]));
  closeFunction();
}

TEST_F(ResidualsPageTest, GoesAgainstAnyVariable) {
  openAt("pagResiduals", rough({9, 7}));
  EXPECT_THAT(entries("cboVariable"), ElementsAre("x", "y"));
  choose("cboVariable", "y");
  const auto fit = shownFit();
  const PicturePoint point = residualPictures(*fit).againstVariable[1][20];
  clickAt(placeOf(point.x, point.y, 1));
  EXPECT_THAT(marks().y, Each(Eq(point.y)));
}

TEST_F(ResidualsPageTest, OfAnExactFitSaysSo) {
  openAt("pagResiduals", twoVariables());
  EXPECT_THAT(words(), HasSubstr("The residuals are 0 as far as can be told"));
  EXPECT_EQ(largest().rowCount(), 0);
}

}  // namespace
}  // namespace tavimor
