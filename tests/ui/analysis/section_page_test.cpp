#include <gmock/gmock.h>

#include "analysis/pictures/section.h"
#include "ui/support/picture_pages_test.h"

namespace tavimor {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::SizeIs;

class SectionPageTest : public PicturePagesTest {
 protected:
  Section wanted(const PerVariable<double>& at, Long along = 0) const {
    SectionChoice choice;
    choice.variable = along;
    choice.at = at;
    return sectionOf(*shownFit(), choice);
  }

  static void expectCurve(const Section& section) {
    ASSERT_THAT(curves("fit"), SizeIs(1));
    EXPECT_EQ(curves("fit")[0].x, section.x);
    EXPECT_EQ(curves("fit")[0].y, section.curves[0].value);
  }
};

TEST_F(SectionPageTest, RunsAlongTheFirstVariableInTheMiddleOfTheOthers) {
  openAt("pagSection", rough({9, 7, 5}));
  EXPECT_EQ(held(1), 3);
  EXPECT_EQ(held(2), 2);
  expectCurve(wanted({0, 3, 2}));
}

TEST_F(SectionPageTest, ShowsBothBandsAndShadesWhatLiesBeyondTheInterval) {
  openAt("pagSection", rough({9, 7}));
  EXPECT_EQ(bands(), 2);
  EXPECT_EQ(shades(), 2);
  EXPECT_LT(rangeOfX().first, 0);
  EXPECT_GT(rangeOfX().second, 8);
}

TEST_F(SectionPageTest, TheSliderHoldsAVariableAtTheValuesOfItsList) {
  openAt("pagSection", rough({9, 7}));
  slide(1, Qt::Key_Right);
  EXPECT_EQ(held(1), 4);
  expectCurve(wanted({0, 4}));
  slide(1, Qt::Key_Home);
  expectCurve(wanted({0, 0}));
}

TEST_F(SectionPageTest, TheFieldHoldsAVariableAnywhere) {
  openAt("pagSection", rough({9, 7}));
  hold(1, "2.25");
  expectCurve(wanted({0, 2.25}));
  EXPECT_THAT(words(), HasSubstr("off the grid"));
  EXPECT_EQ(inPage<QSlider>("sldAt(1)").value(), 2);
}

TEST_F(SectionPageTest, AFieldWithoutANumberGoesBackToWhatItHeld) {
  openAt("pagSection", rough({9, 7}));
  for (const char* text : {"much", "", "1,5"}) {
    hold(1, text);
    EXPECT_EQ(inPage<QLineEdit>("txtAt(1)").text().toStdString(), "3") << text;
  }
  expectCurve(wanted({0, 3}));
}

TEST_F(SectionPageTest, ArrowKeysMoveTheSection) {
  openAt("pagSection", rough({9, 7, 5}));
  press(Qt::Key_Right);
  press(Qt::Key_Right);
  press(Qt::Key_Down);
  EXPECT_EQ(held(1), 5);
  EXPECT_EQ(held(2), 1);
  expectCurve(wanted({0, 5, 1}));
  press(Qt::Key_Left);
  press(Qt::Key_Up);
  expectCurve(wanted({0, 4, 2}));
}

TEST_F(SectionPageTest, RunsAlongAnotherVariable) {
  openAt("pagSection", rough({9, 7}));
  choose("cboAlong", "y");
  EXPECT_FALSE(inPage<QSlider>("sldAt(1)").isVisible());
  expectCurve(wanted({4, 0}, 1));
}

TEST_F(SectionPageTest, ShowsACurveForEachOfSomeValuesOfASecondVariable) {
  openAt("pagSection", rough({9, 7, 5}));
  choose("cboFamily", "y");
  EXPECT_FALSE(inPage<QSlider>("sldAt(1)").isVisible());
  EXPECT_TRUE(inPage<QSlider>("sldAt(2)").isVisible());
  for (const auto& [name, y] : {std::pair("y = 0", 0.0), std::pair("y = 3", 3.0), std::pair("y = 6", 6.0)}) {
    ASSERT_THAT(curves(name), SizeIs(1)) << name;
    EXPECT_EQ(curves(name)[0].y, wanted({0, y, 2}).curves[0].value);
  }
}

TEST_F(SectionPageTest, TheSecondVariableIsAnother) {
  openAt("pagSection", rough({9, 7, 5}));
  EXPECT_THAT(entries("cboFamily"), ElementsAre("one value", "y", "z"));
  choose("cboFamily", "y");
  choose("cboAlong", "y");
  EXPECT_THAT(entries("cboFamily"), ElementsAre("one value", "x", "z"));
  EXPECT_EQ(inPage<QComboBox>("cboFamily").currentText().toStdString(), "one value");
}

TEST_F(SectionPageTest, OneVariableNeedsNothingHeld) {
  openAt("pagSection", rough({9}));
  EXPECT_FALSE(inPage<QSlider>("sldAt(0)").isVisible());
  EXPECT_THAT(entries("cboFamily"), ElementsAre("one value"));
  expectCurve(wanted({}));
}

TEST_F(SectionPageTest, TheFieldsKeepTheirValuesThroughTheNextFit) {
  openAt("pagSection", rough({9, 7}));
  hold(1, "2.25");
  activate();
  enter("txtTerms(0)", "3");
  AnalysisWindowTest::press(Qt::Key_Tab);
  compute();
  ASSERT_TRUE(QTest::qWaitFor([this] { return curves("fit")[0].y == wanted({0, 2.25}).curves[0].value; }));
  EXPECT_EQ(held(1), 2.25);
}

TEST_F(SectionPageTest, ChoicesAreKeptForTheNextWindow) {
  openAt("pagSection", rough({9, 7, 5}));
  choose("cboAlong", "y");
  choose("cboFamily", "z");
  analysis().close();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  activate();
  openAnalysis();
  show("pagSection");
  EXPECT_EQ(inPage<QComboBox>("cboAlong").currentText().toStdString(), "y");
  EXPECT_EQ(inPage<QComboBox>("cboFamily").currentText().toStdString(), "z");
}

}  // namespace
}  // namespace tavimor
