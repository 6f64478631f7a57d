#include "ui/pictures/picture.h"

#include <gmock/gmock.h>
#include <qcustomplot.h>

#include <QSignalSpy>
#include <QTest>

#include "analysis/pictures/pictured_fits.h"
#include "ui/pictures/canvas.h"
#include "ui/pictures/drawings.h"

namespace tavimor {
namespace {

using test::pictured;
using test::roughProblem;
using testing::HasSubstr;

class PictureTest : public testing::Test {
 protected:
  void SetUp() override {
    picture.resize(700, 500);
    show(roughProblem(2), {0.0, 0.0});
    picture.QWidget::show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&picture));
    QTest::qWait(50);  // the queued drawing
  }

  void show(const Problem& problem, const PerVariable<double>& at) {
    fit = pictured(problem);
    SectionChoice choice;
    choice.at = at;
    showSection(picture, fit, sectionOf(*fit, choice));
  }

  Panel& panel() { return *picture.panels().front(); }

  QPoint place(double x, double y) {
    return {static_cast<int>(panel().xAxis().coordToPixel(x)), static_cast<int>(panel().yAxis().coordToPixel(y))};
  }

  void wheel(int clicks) {
    const QPointF middle = panel().rect().center();
    QWheelEvent event(middle, picture.plot().mapToGlobal(middle), {}, {0, 120 * clicks}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&picture.plot(), &event);
  }

  Picture picture{QStringLiteral("picture")};
  std::shared_ptr<const ShownFit> fit;
};

TEST_F(PictureTest, TheCurveIsTheSectionPointByPoint) {
  SectionChoice choice;
  const Section section = sectionOf(*fit, choice);
  bool found = false;
  for (QCPGraph* graph : panel().rect().graphs()) {
    if (graph->name() != QStringLiteral("fit")) continue;
    found = true;
    ASSERT_EQ(static_cast<std::size_t>(graph->dataCount()), section.x.size());
    for (int n = 0; n < graph->dataCount(); ++n) {
      EXPECT_EQ(graph->data()->at(n)->key, section.x[n]);
      EXPECT_EQ(graph->data()->at(n)->value, section.curves[0].value[n]);
    }
  }
  EXPECT_TRUE(found);
}

TEST_F(PictureTest, TheWheelZoomsAndADoubleClickShowsAll) {
  const double width = panel().xAxis().range().size();
  wheel(2);
  EXPECT_LT(panel().xAxis().range().size(), width);
  QTest::mouseDClick(&picture.plot(), Qt::LeftButton, {}, panel().rect().topLeft() + QPoint(5, 5));
  EXPECT_EQ(panel().xAxis().range().size(), width);
}

TEST_F(PictureTest, ThePartInViewStaysWhenASliderMovesTheSection) {
  wheel(3);
  const QCPRange range = panel().xAxis().range();
  const auto model = roughProblem(2);
  show(model, {0.0, model.X1[3]});
  EXPECT_EQ(panel().xAxis().range(), range);
}

TEST_F(PictureTest, ThePlaceUnderThePointerIsToldInTheNamesOfTheAxes) {
  QSignalSpy places(&picture, &Picture::pointedAt);
  QTest::mouseMove(&picture.plot(), place(1.0, 2.0));
  ASSERT_FALSE(places.isEmpty());
  EXPECT_THAT(places.last()[0].toString().toStdString(), HasSubstr("x = "));
  EXPECT_THAT(places.last()[0].toString().toStdString(), HasSubstr("function = "));
}

TEST_F(PictureTest, AClickOnAPointTellsItsNumberAndADoubleClickTellsItToo) {
  QSignalSpy clicked(&picture, &Picture::pointClicked), doubleClicked(&picture, &Picture::pointDoubleClicked);
  const Problem& problem = fit->problem();
  const QPoint third = place(problem.X0[2], problem.F(2, 0, 0, 0));
  QTest::mouseClick(&picture.plot(), Qt::LeftButton, {}, third);
  ASSERT_EQ(clicked.count(), 1);
  EXPECT_EQ(clicked[0][0].value<std::size_t>(), 2U);
  QTest::mouseDClick(&picture.plot(), Qt::LeftButton, {}, third);
  ASSERT_EQ(doubleClicked.count(), 1);
  EXPECT_EQ(doubleClicked[0][0].value<std::size_t>(), 2U);
}

TEST_F(PictureTest, ArrowKeysAreHandedOnAndPlusZooms) {
  QSignalSpy arrows(&picture, &Picture::arrowPressed);
  QTest::keyClick(&picture, Qt::Key_Right);
  EXPECT_EQ(arrows.count(), 1);
  const double width = panel().xAxis().range().size();
  QTest::keyClick(&picture, Qt::Key_Plus);
  EXPECT_LT(panel().xAxis().range().size(), width);
  QTest::keyClick(&picture, Qt::Key_Home);
  EXPECT_EQ(panel().xAxis().range().size(), width);
}

TEST_F(PictureTest, AScreenReaderIsToldWhatIsToBeSeen) {
  EXPECT_EQ(picture.accessibleName(), QStringLiteral("Section along x at y = 0"));
  EXPECT_THAT(picture.accessibleDescription().toStdString(), HasSubstr("The fit along x from 0 to 2."));
}

TEST_F(PictureTest, WithoutAFitItSaysWhy) {
  Dimension model = roughProblem(2);
  model.F(0, 0, 0, 0) = NAN;
  show(model, {});
  EXPECT_TRUE(picture.panels().empty());
  EXPECT_THAT(picture.accessibleDescription().toStdString(), HasSubstr("no number"));
}

TEST_F(PictureTest, OfAMapHasTheColoursOfItsValues) {
  const MapChoice choice{MapOf::Given, 0, 1, {}};
  const SurfaceMap map = mapOf(*fit, choice);
  showMap(picture, fit, choice, map);
  const QCPColorMap* colours = nullptr;
  for (QCPAbstractPlottable* plottable : panel().rect().plottables())
    if (const auto* one = qobject_cast<QCPColorMap*>(plottable)) colours = one;
  ASSERT_NE(colours, nullptr);
  EXPECT_EQ(colours->dataRange(), QCPRange(map.range.least, map.range.largest));
  for (int j = 0; j < 301; j += 60)
    for (int i = 0; i < 301; i += 50) {
      const double value = colours->data()->cell(i, j);
      EXPECT_EQ(value, map.sheet.at(i, j));
      const double share = (value - map.range.least) / (map.range.largest - map.range.least);
      const Colour wanted = colourAt(map.scale, share);
      const QColor drawn = QCPColorGradient(colours->gradient()).color(value, colours->dataRange());
      EXPECT_NEAR(drawn.red(), wanted.red, 2);
      EXPECT_NEAR(drawn.green(), wanted.green, 2);
      EXPECT_NEAR(drawn.blue(), wanted.blue, 2);
    }
}

TEST_F(PictureTest, OfResidualsHasFourPanelsAndMarksTheSelectedPointInEachThatShowsPoints) {
  showResiduals(picture, fit, std::make_shared<const ResidualPictures>(residualPictures(*fit)), 0);
  ASSERT_EQ(picture.panels().size(), 4U);
  const int before = picture.plot().graphCount();
  picture.mark(7);
  EXPECT_EQ(picture.plot().graphCount(), before + 3);
}

}  // namespace
}  // namespace tavimor
