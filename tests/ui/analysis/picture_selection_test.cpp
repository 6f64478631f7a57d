#include <gmock/gmock.h>

#include <QLabel>
#include <QListView>

#include "analysis/pictures/residual_pictures.h"
#include "ui/controls/form.h"
#include "ui/data_windows/frmFun.h"
#include "ui/data_windows/frmVars.h"
#include "ui/support/picture_pages_test.h"

namespace tavimor {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::Eq;
using testing::IsEmpty;
using testing::MatchesRegex;
using testing::SizeIs;

class PictureSelection : public PicturePagesTest {
 protected:
  PictureSelection() { openAt("pagMap", rough({9, 7, 5})); }

  /// One more value of x, from the main window.
  void addAValue() {
    activate();
    dialogs.expectAndType("1");
    click("cmdAddVars(0)");
    auto* values = Form::openForm<frmVars>();
    ASSERT_TRUE(waitForKeyboard(*values));
    type("9");
    QTest::mouseClick(values->findChild<QPushButton*>("cmdExit"), Qt::LeftButton);
    ASSERT_TRUE(waitForKeyboard(*window));
    ASSERT_EQ(model.X0[9], 9);
  }

  static void expectMark(double x, double y) {
    EXPECT_THAT(marks().x, ElementsAre(x));
    EXPECT_THAT(marks().y, ElementsAre(y));
  }
};

TEST_F(PictureSelection, APointThatIsClickedIsMarked) {
  clickAt(placeOf(6, 5));
  expectMark(6, 5);
}

TEST_F(PictureSelection, APointSelectedInTheMapIsSelectedInEveryPicture) {
  clickAt(placeOf(6, 5));
  show("pagSection");
  EXPECT_EQ(inPage<QLineEdit>("txtAt(1)").text().toStdString(), "5") << "the section goes where the point lies";
  expectMark(6, model.F(6, 5, 2, 0));
  show("pagResiduals");
  EXPECT_THAT(marks().y, SizeIs(3));
  EXPECT_THAT(marks().y, Each(Eq(shownFit()->residual(6, 5, 2, 0))));
}

TEST_F(PictureSelection, APointSelectedInASectionTakesTheMapThere) {
  show("pagSection");
  slide(2, Qt::Key_End);
  clickAt(placeOf(7, model.F(7, 3, 4, 0)));
  show("pagMap");
  EXPECT_EQ(inPage<QLineEdit>("txtAt(2)").text().toStdString(), "4");
  expectMark(7, 3);
}

TEST_F(PictureSelection, EscapeSelectsNone) {
  clickAt(placeOf(6, 5));
  press(Qt::Key_Escape);
  EXPECT_THAT(marks().x, IsEmpty());
  show("pagSection");
  EXPECT_THAT(marks().x, IsEmpty());
}

TEST_F(PictureSelection, ADoubleClickOnAPointOpensTheFunctionThere) {
  doubleClickAt(placeOf(6, 5));
  ASSERT_NE(Form::openForm<frmFun>(), nullptr);
  EXPECT_EQ(model.StartIdx, (PerVariable<Long>{6, 5, 2, 0}));
  closeFunction();
}

TEST_F(PictureSelection, AWheelZoomsAndADoubleClickBesideAllPointsShowsAll) {
  const auto before = rangeOfX();
  turnWheel(3);
  EXPECT_GT(rangeOfX().first, before.first);
  EXPECT_LT(rangeOfX().second, before.second);
  doubleClickAt(placeOf(rangeOfX().first + 0.4, 3.5));
  EXPECT_EQ(rangeOfX(), before);
  EXPECT_EQ(Form::openForm<frmFun>(), nullptr);
}

TEST_F(PictureSelection, EscapeShowsAllToo) {
  const auto before = rangeOfX();
  turnWheel(3);
  press(Qt::Key_Escape);
  EXPECT_EQ(rangeOfX(), before);
}

TEST_F(PictureSelection, ThePlaceUnderThePointerIsTold) {
  pointAt(placeOf(6, 5));
  EXPECT_THAT(inPage<QLabel>("lblPlace").text().toStdString(), MatchesRegex("x = [56][.0-9]*, y = [45][.0-9]*"));
}

TEST_F(PictureSelection, APointThatTheGridHasLostIsSelectedNoLonger) {
  addAValue();
  compute();
  ASSERT_TRUE(QTest::qWaitFor([] { return rangeOfX().second > 9; }));
  draw();
  clickAt(placeOf(9, 5));
  ASSERT_THAT(marks().x, SizeIs(1));
  activate();
  for (const char* step : {"the value typed", "the value added"}) {
    SCOPED_TRACE(step);
    ASSERT_TRUE(item("mnuUndo").isEnabled());
    item("mnuUndo").trigger();
  }
  ASSERT_EQ(model.LastPoint[0], 8);
  EXPECT_TRUE(QTest::qWaitFor([] { return marks().x.empty(); }));
}

TEST_F(PictureSelection, APictureOfAFitThatIsDroppedGreysAndStays) {
  const std::string before = words();
  activate();
  enter("txtTerms(0)", "1");
  AnalysisWindowTest::press(Qt::Key_Tab);
  EXPECT_EQ(picture().palette().color(QPalette::Active, QPalette::WindowText),
            QApplication::palette().color(QPalette::Disabled, QPalette::WindowText));
  EXPECT_EQ(words(), before);
  compute();
  EXPECT_TRUE(QTest::qWaitFor([&] { return words() != before; }));
  EXPECT_EQ(picture().palette().color(QPalette::Active, QPalette::WindowText),
            QApplication::palette().color(QPalette::Active, QPalette::WindowText));
}

TEST_F(PictureSelection, InAGridThatHasChangedMeanwhileNoPointIsOpened) {
  addAValue();
  QString text;
  dialogs.expectAndPress("OK", &text);
  doubleClickAt(placeOf(6, 5));
  EXPECT_EQ(text.toStdString(), "The grid is not the one that was analysed: press Compute first.");
  EXPECT_EQ(Form::openForm<frmFun>(), nullptr);
}

class ManyPoints : public PicturePagesTest {};

TEST_F(ManyPoints, OneIsMarkedWhereTooManyAreThereToBeDrawn) {
  openAt("pagResiduals", rough({80, 80}));
  auto& list = inPage<QListView>("lstLargest");
  for (int row = 0; row < 5; ++row) {
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(list.model()->index(row, 0)).center());
    EXPECT_THAT(marks().y, SizeIs(3)) << row;
  }
  const auto fit = shownFit();
  const PerVariable<Long> wanted = gridIndexAt(model.F.last(), residualPictures(*fit).largest[4]);
  show("pagMap");
  EXPECT_THAT(marks().x, ElementsAre(static_cast<double>(wanted[0])));
  EXPECT_THAT(marks().y, ElementsAre(static_cast<double>(wanted[1])));
}

}  // namespace
}  // namespace tavimor
