#include <gtest/gtest.h>

#include <QMenu>
#include <QMenuBar>

#include "ui/support/main_window_test.h"

namespace tavimor {
namespace {

class Number : public MainWindowTest {};

struct NumberCase {
  const char* name;
  const char* text;
  int lastVar;  // -1: refused
};

void PrintTo(const NumberCase& entry, std::ostream* stream) { *stream << '"' << entry.text << '"'; }

class NumberTexts : public MainWindowTest, public testing::WithParamInterface<NumberCase> {};

TEST_P(NumberTexts, AreAcceptedOrKeepTheFocus) {
  const Long before = model.LastVar;
  type(QLatin1String(GetParam().text));
  press(Qt::Key_Tab);
  const bool refused = GetParam().lastVar < 0;
  EXPECT_EQ(focusName(), refused ? "txtOrder" : "txtVarNams");
  EXPECT_EQ(box("txtOrder").isEnabled(), refused);
  EXPECT_EQ(model.LastVar, refused ? before : GetParam().lastVar);
}

INSTANTIATE_TEST_SUITE_P(Entries, NumberTexts,
                         testing::Values(NumberCase{"Zero", "0", -1}, NumberCase{"Negative", "-1", -1},
                                         NumberCase{"Five", "5", -1}, NumberCase{"Empty", "", -1},
                                         NumberCase{"Word", "abc", -1}, NumberCase{"NoNumber", "NAN", -1},
                                         NumberCase{"JustAboveFour", "4.1", -1},
                                         NumberCase{"RoundsToNoVariable", "0.4", -1}, NumberCase{"Half", "0.5", 0},
                                         NumberCase{"One", "1", 0}, NumberCase{"Four", "4", 3},
                                         NumberCase{"HalfToEven", "2.5", 2}, NumberCase{"LeadingNumber", "2 vars", 1},
                                         NumberCase{"CommaEndsTheNumber", "3,9", 2}),
                         [](const auto& param) { return param.param.name; });

TEST_F(Number, AnAcceptedOneClearsTheArrays) {
  model.Degree = {7, 7, 7, 7};
  model.VarName = {"a", "b", "c", "d"};
  type("2");
  press(Qt::Key_Return);
  EXPECT_EQ(model.Degree, PerVariable<Long>{});
  EXPECT_EQ(model.VarName, PerVariable<std::string>{});
}

TEST_F(Number, LeavingItMakesTheBlocksAndSwitchesOpenOff) {
  EXPECT_EQ(window->findChild<QLineEdit*>("txtLL(1)"), nullptr);
  type("3");
  press(Qt::Key_Tab);
  EXPECT_FALSE(item("mnuOpen").isEnabled());
  EXPECT_NE(window->findChild<QLineEdit*>("txtLL(2)"), nullptr);
  EXPECT_EQ(window->findChild<QLineEdit*>("txtLL(3)"), nullptr);
  EXPECT_FALSE(box("txtLL(2)").isVisible());
}

TEST_F(Number, TheTablesAreLaidOutByTheNumbersInTheFields) {
  type("2");
  press(Qt::Key_Tab);
  EXPECT_EQ(model.Coef.last(), (PerVariable<Long>{textOf("txtTerms(0)")[0] - '0', textOf("txtTerms(1)")[0] - '0'}));
  EXPECT_EQ(model.F.last(), (PerVariable<Long>{textOf("txtPoints(0)")[0] - '0', textOf("txtPoints(1)")[0] - '0'}));
}

TEST_F(Number, ARefusedOneSwallowsTheClickOnTheNames) {
  type("5");
  QTest::mouseClick(&box("txtVarNams"), Qt::LeftButton);
  EXPECT_EQ(focusName(), "txtOrder");
  EXPECT_TRUE(item("mnuOpen").isEnabled());
}

TEST_F(Number, AClickOnAnythingLeavesIt) {
  type("2");
  QTest::mouseClick(&box("txtLL(0)"), Qt::LeftButton);
  EXPECT_EQ(focusName(), "txtVarNams");
  EXPECT_FALSE(box("txtOrder").isEnabled());
}

TEST_F(Number, AClickOnTheMenusDoesNotLeaveIt) {
  auto* menuBar = window->findChild<QMenuBar*>();
  QAction& file = item("mnuFile");
  QTest::mouseClick(menuBar, Qt::LeftButton, {}, menuBar->actionGeometry(&file).center());
  EXPECT_TRUE(file.menu()->isVisible());
  QTest::keyClick(file.menu(), Qt::Key_Escape);
  EXPECT_FALSE(file.menu()->isVisible());
  press(Qt::Key_Escape);
  EXPECT_EQ(focusName(), "txtOrder");
}

TEST_F(Number, AClickBesideTheFieldsLeavesItUnlessItIsRefused) {
  const auto clickBeside = [this] { QTest::mouseClick(window, Qt::LeftButton, {}, QPoint(3, window->height() - 3)); };
  clickBeside();
  EXPECT_EQ(focusName(), "txtOrder");
  type("2");
  clickBeside();
  EXPECT_EQ(focusName(), "txtVarNams");
}

TEST_F(Number, ShiftTabAndTheListLeaveItForTheNamesToo) {
  type("2");
  press(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(focusName(), "txtVarNams");
}

struct NamesCase {
  const char* name;
  const char* number;
  const char* text;
  bool accepted;
};

void PrintTo(const NamesCase& entry, std::ostream* stream) { *stream << '"' << entry.text << '"'; }

class NamesTexts : public MainWindowTest, public testing::WithParamInterface<NamesCase> {};

TEST_P(NamesTexts, AreAcceptedOrKeepTheFocus) {
  declare(QLatin1String(GetParam().number), QLatin1String(GetParam().text));
  EXPECT_EQ(focusName(), GetParam().accepted ? "txtLL(0)" : "txtVarNams");
  EXPECT_EQ(box("txtVarNams").isEnabled(), !GetParam().accepted);
  EXPECT_EQ(item("mnuSave").isEnabled(), GetParam().accepted);
}

INSTANTIATE_TEST_SUITE_P(Entries, NamesTexts,
                         testing::Values(NamesCase{"Two", "2", "x,y", true},
                                         NamesCase{"EmptyInTheMiddle", "3", "x,,y", false},
                                         NamesCase{"OneTooManyInTheMiddle", "2", "x,,y", false},
                                         NamesCase{"EmptyAtTheEnd", "3", "x,y,", false},
                                         NamesCase{"OneTooManyAtTheEnd", "2", "x,y,", false},
                                         NamesCase{"TooFew", "2", "x", false}, NamesCase{"TooMany", "1", "x,y", false},
                                         NamesCase{"None", "1", "", false}, NamesCase{"ABlankIsAName", "1", " ", true}),
                         [](const auto& param) { return param.param.name; });

class Names : public MainWindowTest {};

TEST_F(Names, BlanksStayPartOfThem) {
  declare("2", "x, y");
  EXPECT_EQ(model.VarName[0], "x");
  EXPECT_EQ(model.VarName[1], " y");
  EXPECT_EQ(label("lblVar(1)").text(), " y");
}

// A click on the names of a window that has never been active passes the number over.
TEST_F(Names, GivenBeforeTheNumberFixIt) {
  Dimension fresh;
  QPointer<frmTavimor> another = new frmTavimor(fresh);
  auto* names = another->findChild<QLineEdit*>("txtVarNams");
  names->setFocus();
  another->show();
  another->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(another));
  ASSERT_TRUE(names->hasFocus());
  QTest::keyClicks(names, "x");
  QTest::keyClick(names, Qt::Key_Tab);
  EXPECT_FALSE(names->isEnabled());
  EXPECT_FALSE(another->findChild<QLineEdit*>("txtOrder")->isEnabled());
  EXPECT_EQ(fresh.LastVar, 0);
  delete another;
}

TEST_F(Names, LeavingThemSwitchesTheMenusAndTheBlocksOn) {
  declare("2", "x,y");
  for (const char* name : {"mnuSave", "mnuSaveAs", "mnuPrint"}) EXPECT_TRUE(item(name).isEnabled()) << name;
  EXPECT_TRUE(item("mnuAbout").isVisible());
  EXPECT_TRUE(box("txtLL(0)").isEnabled());
  for (const char* name : {"cmdEditFun", "cmdCompute", "cmdNextVar", "cmdAddVars(0)", "cmdEditVars(0)"})
    EXPECT_TRUE(button(name).isEnabled()) << name;
  EXPECT_FALSE(button("cmdEvaluations").isEnabled());
}

TEST_F(Names, AClickOnAFieldOfTheBlockLeavesThem) {
  type("1");
  press(Qt::Key_Tab);
  type("x");
  QTest::mouseClick(&box("txtUL(0)"), Qt::LeftButton);
  EXPECT_FALSE(box("txtVarNams").isEnabled());
  EXPECT_EQ(focusName(), "txtLL(0)");
}

TEST_F(Names, AClickBesideTheFieldsAfterwardsKeepsTheFocus) {
  declare("1", "x");
  QTest::mouseClick(window, Qt::LeftButton, {}, QPoint(3, window->height() - 3));
  EXPECT_EQ(focusName(), "txtLL(0)");
}

}  // namespace
}  // namespace tavimor
