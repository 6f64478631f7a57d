#include <gtest/gtest.h>

#include "ui/support/main_window_test.h"

namespace tavimor {
namespace {

struct FieldCase {
  const char* name;
  const char* field;
  const char* text;
  bool accepted;
};

void PrintTo(const FieldCase& entry, std::ostream* stream) { *stream << entry.field << " \"" << entry.text << '"'; }

// One variable whose block shows 4 values and degree 2.
class FieldTexts : public MainWindowTest, public testing::WithParamInterface<FieldCase> {
 protected:
  FieldTexts() {
    declare("1", "x");
    specify(0, "0", "1", "4", "2");
  }
};

TEST_P(FieldTexts, AreAcceptedOrKeepTheFocusAndSwallowTheClick) {
  enter(QLatin1String(GetParam().field), QLatin1String(GetParam().text));
  click("cmdCompute");
  EXPECT_EQ(focusName(), GetParam().accepted ? "cmdCompute" : GetParam().field);
  EXPECT_EQ(results().count() > 0, GetParam().accepted);
}

INSTANTIATE_TEST_SUITE_P(
    Limits, FieldTexts,
    testing::Values(FieldCase{"Lower", "txtLL(0)", "-2.5", true}, FieldCase{"Upper", "txtUL(0)", "+3", true},
                    FieldCase{"Exponent", "txtLL(0)", "-1.5E-3", true}, FieldCase{"Blanks", "txtLL(0)", " .5 ", true},
                    FieldCase{"AboveTheUpperOne", "txtLL(0)", "7", true}, FieldCase{"Empty", "txtLL(0)", "", false},
                    FieldCase{"Word", "txtUL(0)", "abc", false}, FieldCase{"Comma", "txtUL(0)", "1,5", false},
                    FieldCase{"NumberAndWord", "txtLL(0)", "1m", false}),
    [](const auto& param) { return param.param.name; });

INSTANTIATE_TEST_SUITE_P(Points, FieldTexts,
                         testing::Values(FieldCase{"One", "txtPoints(0)", "1", false},
                                         FieldCase{"Word", "txtPoints(0)", "abc", false},
                                         FieldCase{"NumberAndWord", "txtPoints(0)", "5x", false},
                                         FieldCase{"Empty", "txtPoints(0)", "", false},
                                         FieldCase{"Five", "txtPoints(0)", "5", true},
                                         FieldCase{"LessThanTwo", "txtPoints(0)", "1.9", false}),
                         [](const auto& param) { return param.param.name; });

INSTANTIATE_TEST_SUITE_P(Terms, FieldTexts,
                         testing::Values(FieldCase{"EqualToPoints", "txtTerms(0)", "4", false},
                                         FieldCase{"OneLessThanPoints", "txtTerms(0)", "3", true},
                                         FieldCase{"Negative", "txtTerms(0)", "-1", false},
                                         FieldCase{"None", "txtTerms(0)", "0", true},
                                         FieldCase{"Word", "txtTerms(0)", "abc", true}),
                         [](const auto& param) { return param.param.name; });

INSTANTIATE_TEST_SUITE_P(Centre, FieldTexts,
                         testing::Values(FieldCase{"Star", "txtExpansion(0)", "*", true},
                                         FieldCase{"Outside", "txtExpansion(0)", "70", true},
                                         FieldCase{"Word", "txtExpansion(0)", "abc", true},
                                         FieldCase{"Empty", "txtExpansion(0)", "", true}),
                         [](const auto& param) { return param.param.name; });

class BlockEntry : public MainWindowTest {
 protected:
  BlockEntry() {
    declare("2", "x,y");
    specify(0, "0", "1", "4", "2");
  }
};

TEST_F(BlockEntry, TwoValuesAreAccepted) {
  enter("txtTerms(0)", "1");
  enter("txtPoints(0)", "2");
  press(Qt::Key_Tab);
  EXPECT_EQ(model.LastPoint[0], 1);
}

TEST_F(BlockEntry, FieldsAreStoredRoundedHalfToEven) {
  enter("txtPoints(0)", "5.5");
  enter("txtTerms(0)", "2.5");
  press(Qt::Key_Tab);
  EXPECT_EQ(model.LastPoint[0], 4);
  EXPECT_EQ(model.Degree[0], 2);
}

TEST_F(BlockEntry, EveryFieldIsSelectedOnFocus) {
  for (const char* field : {"txtLL(0)", "txtUL(0)", "txtPoints(0)", "txtTerms(0)", "txtExpansion(0)"}) {
    QTest::mouseClick(&box(field), Qt::LeftButton);
    EXPECT_EQ(box(field).selectedText(), box(field).text()) << field;
  }
}

TEST_F(BlockEntry, EnterMovesOnLikeTabThroughTheFields) {
  QTest::mouseClick(&box("txtLL(0)"), Qt::LeftButton);
  std::vector<std::string> order;
  for (int n = 0; n < 5; ++n) {
    press(Qt::Key_Return);
    order.push_back(focusName());
  }
  EXPECT_EQ(order,
            (std::vector<std::string>{"txtUL(0)", "txtPoints(0)", "txtTerms(0)", "txtExpansion(0)", "chkSpaced(0)"}));
}

TEST_F(BlockEntry, EnterPressesTheButtonThatHasTheFocus) {
  QTest::mouseClick(&box("txtLL(0)"), Qt::LeftButton);
  button("cmdCompute").setFocus();
  press(Qt::Key_Return);
  EXPECT_TRUE(model.FitDone);
}

TEST_F(BlockEntry, TabReachesEveryControlAsOneReads) {
  QTest::mouseClick(&box("txtExpansion(0)"), Qt::LeftButton);
  std::vector<std::string> order;
  for (int n = 0; n < 9; ++n) {
    press(Qt::Key_Tab);
    order.push_back(focusName());
  }
  EXPECT_EQ(order, (std::vector<std::string>{"chkSpaced(0)", "cmdAddVars(0)", "cmdEditVars(0)", "cmdPrevVar",
                                             "cmdNextVar", "cmdEditFun", "cmdCompute", "lstCoeff", "txtLL(0)"}));
}

TEST_F(BlockEntry, LeavingTheDegreeUnchangedKeepsTheFit) {
  click("cmdCompute");
  ASSERT_TRUE(model.FitDone);
  enter("txtTerms(0)", "2");
  press(Qt::Key_Tab);
  EXPECT_TRUE(model.FitDone);
  EXPECT_GT(results().count(), 0);
}

TEST_F(BlockEntry, AnotherDegreeDropsTheFitAndLaysTheCoefficientsOut) {
  click("cmdCompute");
  enter("txtTerms(0)", "3");
  press(Qt::Key_Tab);
  EXPECT_FALSE(model.FitDone);
  EXPECT_EQ(results().count(), 0);
  EXPECT_EQ(model.Coef.last(), (PerVariable<Long>{3, 1}));
}

TEST_F(BlockEntry, LeavingTheNumberOfValuesUnchangedKeepsFitAndFunction) {
  click("cmdCompute");
  model.F(1, 1, 0, 0) = 5;
  enter("txtPoints(0)", "4");
  press(Qt::Key_Tab);
  EXPECT_TRUE(model.FitDone);
  EXPECT_EQ(model.F(1, 1, 0, 0), 5);
}

TEST_F(BlockEntry, AnotherNumberOfValuesDropsFitAndFunction) {
  click("cmdCompute");
  model.F(1, 1, 0, 0) = 5;
  enter("txtPoints(0)", "5");
  press(Qt::Key_Tab);
  EXPECT_FALSE(model.FitDone);
  EXPECT_EQ(results().count(), 0);
  EXPECT_EQ(model.F.last(), (PerVariable<Long>{4, 1}));
  EXPECT_EQ(model.F(1, 1, 0, 0), 0);
}

TEST_F(BlockEntry, LimitsAndCentreLeaveTheFitAlone) {
  click("cmdCompute");
  enter("txtUL(0)", "9");
  enter("txtExpansion(0)", "3");
  press(Qt::Key_Tab);
  EXPECT_TRUE(model.FitDone);
}

TEST_F(BlockEntry, ABlockThatNobodyVisitedStandsInNoOnesWay) {
  click("cmdEditVars(0)");
  clickDone();
  click("cmdCompute");
  EXPECT_TRUE(model.FitDone);
  EXPECT_EQ(model.NumGridPoints, 8);
}

}  // namespace
}  // namespace tavimor
