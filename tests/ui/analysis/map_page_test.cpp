#include <gmock/gmock.h>

#include <cmath>

#include "analysis/pictures/round_numbers.h"
#include "analysis/pictures/surface_map.h"
#include "ui/support/picture_pages_test.h"

namespace tavimor {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

bool isSame(double a, double b) { return a == b || (std::isnan(a) && std::isnan(b)); }

class MapPageTest : public PicturePagesTest {
 protected:
  void expectMap(const MapChoice& choice) const {
    const SurfaceMap map = mapOf(*shownFit(), choice);
    const int columns = static_cast<int>(map.sheet.x.size()), rows = static_cast<int>(map.sheet.y.size());
    for (int j = 0; j < rows; j += 30)
      for (int i = 0; i < columns; i += 30) EXPECT_PRED2(isSame, colourAt(i, j), map.sheet.at(i, j)) << i << ", " << j;
    EXPECT_EQ(words(), mapText(*shownFit(), choice, map));
  }
};

TEST_F(MapPageTest, ShowsTheFitOverTheFirstTwoVariables) {
  openAt("pagMap", rough({9, 7, 5}));
  EXPECT_EQ(held(2), 2);
  expectMap({MapOf::Fit, 0, 1, {0, 0, 2}});
}

TEST_F(MapPageTest, ShowsGivenValuesAndBothKindsOfResiduals) {
  openAt("pagMap", rough({9, 7}));
  const std::pair<const char*, MapOf> kinds[] = {{"given value", MapOf::Given},
                                                 {"residual", MapOf::Residual},
                                                 {"relative residual", MapOf::RelativeResidual},
                                                 {"fitted value", MapOf::Fit}};
  for (const auto& [name, of] : kinds) {
    choose("cboShown", name);
    expectMap({of, 0, 1, {}});
  }
}

TEST_F(MapPageTest, TheOtherVariablesGoBySlider) {
  openAt("pagMap", rough({5, 4, 5, 3}));
  slide(2, Qt::Key_End);
  slide(3, Qt::Key_Home);
  expectMap({MapOf::Fit, 0, 1, {0, 0, 4, 0}});
}

TEST_F(MapPageTest, TurnsToOtherVariables) {
  openAt("pagMap", rough({5, 4, 6}));
  choose("cboX", "z");
  EXPECT_THAT(entries("cboY"), ElementsAre("x", "y"));
  choose("cboY", "y");
  EXPECT_TRUE(inPage<QSlider>("sldAt(0)").isVisible());
  expectMap({MapOf::Fit, 2, 1, {2}});
}

TEST_F(MapPageTest, ContourLinesCarryTheirValues) {
  openAt("pagMap", rough({9, 7}));
  const SurfaceMap map = mapOf(*shownFit(), {});
  ASSERT_THAT(map.contours, Not(IsEmpty()));
  EXPECT_THAT(labels(), Contains(shortNumber(map.contours[map.contours.size() / 2].level)));
  choose("cboShown", "residual");
  EXPECT_THAT(labels(), IsEmpty());
}

TEST_F(MapPageTest, OffTheGridThereIsAFitButNoGivenValue) {
  openAt("pagMap", rough({5, 4, 5}));
  hold(2, "1.5");
  expectMap({MapOf::Fit, 0, 1, {0, 0, 1.5}});
  choose("cboShown", "given value");
  EXPECT_THAT(words(), HasSubstr("No values are given at z = 1.5"));
  EXPECT_TRUE(picture().panels().empty());
}

TEST_F(MapPageTest, OfOneVariableSaysWhatItTakes) {
  openAt("pagMap", rough({9}));
  EXPECT_EQ(words(), "A map takes two variables.");
  EXPECT_FALSE(inPage<QComboBox>("cboY").isEnabled());
}

TEST_F(MapPageTest, WhatIsShownIsKeptForTheNextWindow) {
  openAt("pagMap", rough({9, 7}));
  choose("cboShown", "residual");
  analysis().close();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  activate();
  openAnalysis();
  show("pagMap");
  expectMap({MapOf::Residual, 0, 1, {}});
}

}  // namespace
}  // namespace tavimor
