#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ui/support/function_window_test.h"

namespace tavimor {
namespace {

using ::testing::ElementsAre;

using FunctionWindow = FunctionWindowTest;

TEST_F(FunctionWindow, OpensAtTheStartingPointWithTheFunctionValueSelected) {
  open({3, 2}, {2, 1});
  EXPECT_EQ(window->windowTitle(), QStringLiteral("Enter/Edit values of function"));
  expectAllBoxesShow({2, 1});
  EXPECT_TRUE(find("txtFun")->hasFocus());
  EXPECT_EQ(find("txtFun")->selectedText().toStdString(), text("txtFun"));
}

TEST_F(FunctionWindow, LabelsTheRowsWithTheNames) {
  open({3, 2});
  EXPECT_EQ(find<QLabel>("lblVar(0)")->text(), QStringLiteral("var0("));
  EXPECT_EQ(find<QLabel>("lblVar(1)")->text(), QStringLiteral("var1("));
}

TEST_F(FunctionWindow, ShowsTheControlsOfTheDeclaredVariablesOnly) {
  open({3, 2});
  for (int k = 0; k < kMaxVariables; ++k)
    for (const char* array :
         {"txtFunIndex", "lblVar", "txtVarIndex", "lblClose", "txtVar", "cmdDecIndex", "cmdIncIndex"})
      EXPECT_EQ(find<QWidget>(element(array, k))->isVisible(), k < 2) << array << k;
  EXPECT_TRUE(find<QLabel>("lblComma(0)")->isVisible());
  EXPECT_FALSE(find<QLabel>("lblComma(1)")->isVisible());
}

TEST_F(FunctionWindow, CaptionsAndToolTipsReadAsUsersKnowThem) {
  open({3});
  const QString add = QStringLiteral("Add the number of units show on the right");
  const QString subtract = QStringLiteral("Subtract the number of units show on the right");
  for (const char* name : {"cmdIncFunIndex", "cmdIncIndex(0)"}) {
    EXPECT_EQ(find<QPushButton>(name)->toolTip(), add);
    EXPECT_EQ(find<QPushButton>(name)->text(), QStringLiteral("+"));
  }
  for (const char* name : {"cmdDecFunIndex", "cmdDecIndex(0)"}) {
    EXPECT_EQ(find<QPushButton>(name)->toolTip(), subtract);
    EXPECT_EQ(find<QPushButton>(name)->text(), QStringLiteral("-"));
  }
  EXPECT_EQ(find<QLabel>("lblFun")->text(), QStringLiteral("f("));
  EXPECT_EQ(find<QLabel>("lblComma(0)")->text(), QStringLiteral(","));
  EXPECT_EQ(find<QLabel>("Label5")->text(), QStringLiteral(")="));
  EXPECT_EQ(find<QLabel>("lblClose(0)")->text(), QStringLiteral(")="));
  EXPECT_EQ(find<QPushButton>("cmdExit")->text(), QStringLiteral("Done"));
}

// The places of the call's controls from left to right, for one to four variables.
TEST_F(FunctionWindow, TheCallIsRightAlignedInTheDesignedPlaces) {
  std::vector<int> indexPlaces, commaPlaces;
  int end = 0, value = 0;
  for (Long variables = kMaxVariables; variables >= 1; --variables) {
    open(std::vector<Long>(static_cast<std::size_t>(variables), 2));
    const auto place = [this](const QString& array, int k) {
      return window->findChild<QWidget*>(QStringLiteral("%1(%2)").arg(array).arg(k))->geometry().center().x();
    };
    const auto opening = find<QLabel>("lblFun")->geometry();
    if (variables == kMaxVariables) {
      for (int k = 0; k < 4; ++k) indexPlaces.push_back(place(QStringLiteral("txtFunIndex"), k));
      for (int j = 0; j < 3; ++j) commaPlaces.push_back(place(QStringLiteral("lblComma"), j));
      end = find<QLabel>("Label5")->x();
      value = find("txtFun")->x();
    }
    const int unused = kMaxVariables - variables;
    for (int k = 0; k < variables; ++k) EXPECT_EQ(place(QStringLiteral("txtFunIndex"), k), indexPlaces[k + unused]);
    for (int j = 0; j < variables - 1; ++j) EXPECT_EQ(place(QStringLiteral("lblComma"), j), commaPlaces[j + unused]);
    EXPECT_EQ(find<QLabel>("Label5")->x(), end);
    EXPECT_EQ(find("txtFun")->x(), value);
    EXPECT_LE(opening.right(), find("txtFunIndex(0)")->x());
    if (unused > 0) {
      EXPECT_LE(opening.left(), commaPlaces[unused - 1]);
      EXPECT_GE(opening.right(), commaPlaces[unused - 1]);
    }
    TearDown();
  }
}

TEST_F(FunctionWindow, TheNextButtonVisitsTheLastVariableFastestAndWrapsAround) {
  open({3, 2});
  std::vector<std::string> visited;
  for (int n = 0; n < 7; ++n) {
    visited.push_back(point());
    click("cmdIncFunIndex");
  }
  EXPECT_THAT(visited, ElementsAre("0,0", "0,1", "1,0", "1,1", "2,0", "2,1", "0,0"));
}

TEST_F(FunctionWindow, ThePreviousButtonGoesFromTheFirstPointToTheLast) {
  open({3, 2});
  click("cmdDecFunIndex");
  expectAllBoxesShow({2, 1});
  click("cmdDecFunIndex");
  expectAllBoxesShow({2, 0});
  click("cmdDecFunIndex");
  expectAllBoxesShow({1, 1});
}

TEST_F(FunctionWindow, AWalkAroundTheGridShowsEveryPointAndChangesNothing) {
  open({2, 3, 1, 2});
  const Table4 before = model.F;
  for (Long i0 = 0; i0 < 2; ++i0)
    for (Long i1 = 0; i1 < 3; ++i1)
      for (Long i3 = 0; i3 < 2; ++i3) {
        expectAllBoxesShow({i0, i1, 0, i3});
        QTest::keyClick(find("txtFun"), Qt::Key_Return);
      }
  expectAllBoxesShow({0, 0, 0, 0});
  EXPECT_TRUE(std::equal(before.data(), before.data() + before.size(), model.F.data()));
}

TEST_F(FunctionWindow, EnterStoresTheValueAndAdvancesWithTheNextValueSelected) {
  open({3, 2});
  QTest::keyClicks(find("txtFun"), QStringLiteral("7.5"));
  QTest::keyClick(find("txtFun"), Qt::Key_Return);
  EXPECT_EQ(model.F(0, 0, 0, 0), 7.5);
  expectAllBoxesShow({0, 1});
  EXPECT_EQ(find("txtFun")->selectedText().toStdString(), text("txtFun"));
}

TEST_F(FunctionWindow, ValuesAreTypedInOneGoWithEnterBetweenThem) {
  open({2, 2});
  for (const char* value : {"1", "2", "3", "4"}) {
    QTest::keyClicks(find("txtFun"), QLatin1String(value));
    QTest::keyClick(find("txtFun"), Qt::Key_Enter);
  }
  EXPECT_EQ(model.F(0, 0, 0, 0), 1.0);
  EXPECT_EQ(model.F(0, 1, 0, 0), 2.0);
  EXPECT_EQ(model.F(1, 0, 0, 0), 3.0);
  EXPECT_EQ(model.F(1, 1, 0, 0), 4.0);
  expectAllBoxesShow({0, 0});
}

TEST_F(FunctionWindow, EveryKeystrokeStoresTheValue) {
  open({3, 2}, {1, 1});
  TextBox* box = find("txtFun");
  std::vector<double> stored;
  for (const char* key : {"2", ".", "5", "a", "b", "c"}) {
    QTest::keyClicks(box, QLatin1String(key));
    stored.push_back(model.F(1, 1, 0, 0));
  }
  EXPECT_THAT(stored, ElementsAre(2.0, 2.0, 2.5, 2.5, 2.5, 2.5));
  EXPECT_EQ(text("txtFun"), "2.5abc");
}

TEST_F(FunctionWindow, TextWithoutANumberIsStoredAsZero) {
  open({3});
  type("txtFun", "abc");
  EXPECT_EQ(model.F(0, 0, 0, 0), 0.0);
}

TEST_F(FunctionWindow, AnEmptiedValueBoxStoresZero) {
  open({3});
  QTest::keyClick(find("txtFun"), Qt::Key_Delete);
  EXPECT_EQ(text("txtFun"), "");
  EXPECT_EQ(model.F(0, 0, 0, 0), 0.0);
}

TEST_F(FunctionWindow, TheStepButtonsOfAVariableGoAroundItsOwnRing) {
  open({5, 3});
  click("cmdDecIndex(0)");
  expectAllBoxesShow({4, 0});
  click("cmdIncIndex(0)");
  expectAllBoxesShow({0, 0});
  click("cmdIncIndex(1)");
  expectAllBoxesShow({0, 1});
  click("cmdDecIndex(1)");
  click("cmdDecIndex(1)");
  expectAllBoxesShow({0, 2});
}

TEST_F(FunctionWindow, AVariableWithASingleValueStaysWhereItIs) {
  open({1, 2});
  click("cmdIncIndex(0)");
  click("cmdDecIndex(0)");
  expectAllBoxesShow({0, 0});
}

// 1/3 has more digits than its text.
TEST_F(FunctionWindow, LookingAtAPointChangesNoValue) {
  open({2, 2});
  model.F(1, 1, 0, 0) = model.VarX = 1.0 / 3.0;
  main->SetVarX(0, 1);
  click("cmdIncIndex(0)");
  click("cmdIncIndex(1)");
  EXPECT_EQ(text("txtFun"), "0.333333333333333");
  EXPECT_EQ(model.F(1, 1, 0, 0), 1.0 / 3.0);
  EXPECT_EQ(x(0, 1), 1.0 / 3.0);
}

TEST_F(FunctionWindow, AnIndexTypedIntoTheCallShowsThatPoint) {
  open({5, 12});
  type("txtFunIndex(0)", "3");
  expectAllBoxesShow({3, 0});
  type("txtFunIndex(1)", "11");
  expectAllBoxesShow({3, 11});
}

TEST_F(FunctionWindow, AnIndexTypedIntoARowShowsThatPoint) {
  open({5, 12});
  type("txtVarIndex(1)", "10");
  expectAllBoxesShow({0, 10});
}

TEST_F(FunctionWindow, AValueTypedAfterAnIndexGoesToThatPoint) {
  open({5, 12});
  type("txtVarIndex(0)", "3");
  type("txtFunIndex(1)", "10");
  type("txtFun", "-2.5");
  EXPECT_EQ(model.F(3, 10, 0, 0), -2.5);
}

TEST_F(FunctionWindow, AnIndexBeyondTheLastDoesNothingAndHoldsTheFocus) {
  open({5, 2});
  for (const char* name : {"txtFunIndex(0)", "txtVarIndex(0)"}) {
    TextBox* box = find(name);
    type(name, "9");
    QTest::keyClick(box, Qt::Key_Tab);
    EXPECT_TRUE(box->hasFocus()) << name;
    EXPECT_EQ(text("txtVar(0)"), numberText(x(0, 0)));
    EXPECT_EQ(text("txtFun"), numberText(model.F(0, 0, 0, 0)));
    EXPECT_EQ(model.StartIdx[0], 0);
    box->selectAll();
    QTest::keyClicks(box, QStringLiteral("0"));
    QTest::keyClick(box, Qt::Key_Tab);
    EXPECT_FALSE(box->hasFocus()) << name;
  }
}

TEST_F(FunctionWindow, ANegativeIndexDoesNothingAndHoldsTheFocus) {
  open({5, 2}, {2, 0});
  TextBox* box = find("txtFunIndex(0)");
  type("txtFunIndex(0)", "-1");
  QTest::keyClick(box, Qt::Key_Tab);
  EXPECT_TRUE(box->hasFocus());
  EXPECT_EQ(point(), "-1,0");
  EXPECT_EQ(text("txtFun"), numberText(model.F(0, 0, 0, 0))) << "the \"-\" alone was still an index, 0";
}

TEST_F(FunctionWindow, ABoxWithAWrongIndexSwallowsTheClickOnAButton) {
  open({5, 2});
  type("txtFunIndex(0)", "9");
  click("cmdIncFunIndex");
  click("cmdExit");
  EXPECT_TRUE(window != nullptr && window->isVisible());
  EXPECT_TRUE(find("txtFunIndex(0)")->hasFocus());
  EXPECT_EQ(point(), "9,0");
}

TEST_F(FunctionWindow, AnEmptiedIndexIsZero) {
  open({5, 2}, {3, 0});
  QTest::mouseClick(find("txtVarIndex(0)"), Qt::LeftButton);
  find("txtVarIndex(0)")->selectAll();
  QTest::keyClick(find("txtVarIndex(0)"), Qt::Key_Delete);
  EXPECT_EQ(point(), "0,0");
  EXPECT_EQ(text("txtVar(0)"), numberText(x(0, 0)));
  EXPECT_EQ(text("txtVarIndex(0)"), "");
  QTest::keyClicks(find("txtVarIndex(0)"), QStringLiteral("4"));
  expectAllBoxesShow({4, 0});
}

TEST_F(FunctionWindow, TypingInTheMiddleOfAnIndexKeepsTheCursorThere) {
  open({200});
  type("txtFunIndex(0)", "15");
  QTest::keyClick(find("txtFunIndex(0)"), Qt::Key_Left);
  QTest::keyClicks(find("txtFunIndex(0)"), QStringLiteral("2"));
  EXPECT_EQ(find("txtFunIndex(0)")->cursorPosition(), 2);
  expectAllBoxesShow({125});
}

TEST_F(FunctionWindow, AFractionalIndexIsRoundedHalvesToEven) {
  open({5, 2});
  type("txtFunIndex(0)", "2.5");
  EXPECT_EQ(text("txtVar(0)"), numberText(x(0, 2)));
  type("txtFunIndex(0)", "3.5");
  EXPECT_EQ(text("txtVar(0)"), numberText(x(0, 4)));
  click("cmdIncFunIndex");
  expectAllBoxesShow({4, 1});
}

TEST_F(FunctionWindow, AnIndexIsWrittenBackAsTheWholeNumberThatWasTaken) {
  open({5, 2});
  for (const char* name : {"txtFunIndex(0)", "txtVarIndex(0)"}) {
    type(name, "03");
    expectAllBoxesShow({3, 0});
    type(name, "1.5");
    expectAllBoxesShow({2, 0});
    type(name, "3.x");
    expectAllBoxesShow({3, 0});
  }
}

TEST_F(FunctionWindow, AnIndexThatIsNotTypedToItsEndIsWrittenBackWhenItsBoxIsLeft) {
  open({5, 2}, {3, 0});
  for (const char* name : {"txtFunIndex(0)", "txtVarIndex(0)"}) {
    type(name, "2.");
    EXPECT_EQ(text(name), "2.");
    QTest::keyClick(find(name), Qt::Key_Tab);
    expectAllBoxesShow({2, 0});
  }
}

TEST_F(FunctionWindow, AVariablesValueIsChangedForEveryPointThatUsesIt) {
  open({3, 2}, {1, 0});
  type("txtVar(0)", "9.75xyz");
  EXPECT_EQ(x(0, 1), 9.75);
  click("cmdIncFunIndex");
  EXPECT_EQ(text("txtVar(0)"), "9.75");
}

TEST_F(FunctionWindow, EveryBoxIsSelectedWhenItGetsTheFocus) {
  open({3, 2});
  for (const char* name : {"txtFunIndex(0)", "txtFunIndex(1)", "txtVarIndex(1)", "txtVar(0)", "txtFun"}) {
    find(name)->setFocus();
    EXPECT_EQ(find(name)->selectedText().toStdString(), text(name)) << name;
  }
}

TEST_F(FunctionWindow, AClickIntoABoxSelectsItsTextSoThatTypingReplacesIt) {
  open({3, 2});
  for (const char* name : {"txtVar(0)", "txtFunIndex(1)", "txtVarIndex(0)", "txtFun"}) {
    QTest::mouseClick(find(name), Qt::LeftButton);
    QTest::keyClicks(find(name), QStringLiteral("1"));
    EXPECT_EQ(text(name), "1") << name;
  }
}

TEST_F(FunctionWindow, TabGoesAsOneReads) {
  open({3, 2});
  find("txtFunIndex(0)")->setFocus();
  std::vector<std::string> order;
  for (int n = 0; n < 13; ++n) {
    order.push_back(window->focusWidget()->objectName().toStdString());
    QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
  }
  EXPECT_THAT(order, ElementsAre("txtFunIndex(0)", "txtFunIndex(1)", "txtFun", "cmdDecFunIndex", "cmdIncFunIndex",
                                 "txtVarIndex(0)", "txtVar(0)", "cmdDecIndex(0)", "cmdIncIndex(0)", "txtVarIndex(1)",
                                 "txtVar(1)", "cmdDecIndex(1)", "cmdIncIndex(1)"));
  EXPECT_TRUE(find<QPushButton>("cmdExit")->hasFocus());
}

TEST_F(FunctionWindow, DoneClosesItAndEnablesTheMainWindow) {
  open({3, 2});
  EXPECT_FALSE(main->isEnabled());
  click("cmdExit");
  EXPECT_TRUE(main->isEnabled());
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(window.isNull());
}

TEST_F(FunctionWindow, ClosingItFromTheTitleBarEnablesTheMainWindowToo) {
  open({3, 2});
  window->close();
  EXPECT_TRUE(main->isEnabled());
}

TEST_F(FunctionWindow, ItIsMadeAfreshAtEveryOpening) {
  open({3, 2});
  model.Updating = true;
  click("cmdExit");
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  model.StartIdx = {1, 1};
  window = new frmFun(model);
  window->show();
  EXPECT_FALSE(model.Updating);
  expectAllBoxesShow({1, 1});
}

TEST_F(FunctionWindow, TypingOnALargeGridIsInstant) {
  open({100, 100});
  QElapsedTimer timer;
  timer.start();
  for (int n = 0; n < 1000; ++n) QTest::keyClick(find("txtFun"), Qt::Key_Return);
  EXPECT_EQ(point(), "10,0");
  EXPECT_LT(timer.elapsed(), 20 * 1000) << "milliseconds for 1000 points";
}

}  // namespace
}  // namespace tavimor
