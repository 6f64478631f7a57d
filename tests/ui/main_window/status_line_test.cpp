#include <gtest/gtest.h>

#include <QStatusBar>

#include "support/stored.h"
#include "ui/support/main_window_test.h"

namespace tavimor {
namespace {

class StatusLineOfTheWindow : public MainWindowTest {
 protected:
  std::string fileName() { return label("lblFileName").text().toStdString(); }
  std::string message() { return label("lblMessage").text().toStdString(); }
  std::string block() { return label("lblBlock").text().toStdString(); }
};

TEST_F(StatusLineOfTheWindow, StandsAtTheFoot) {
  const auto* line = window->findChild<QStatusBar*>("stbStatus");
  ASSERT_NE(line, nullptr);
  EXPECT_TRUE(line->isVisible());
  EXPECT_EQ(line->geometry().bottom(), window->rect().bottom());
  EXPECT_EQ(line->width(), window->width());
}

TEST_F(StatusLineOfTheWindow, TellsTheBlockOnceTheNamesAreGiven) {
  EXPECT_EQ(block(), "");
  declare("3", "x,y,z");
  EXPECT_EQ(block(), "block 1 of 3");
  click("cmdPrevVar");
  EXPECT_EQ(block(), "block 3 of 3");
  click("cmdNextVar");
  EXPECT_EQ(block(), "block 1 of 3");
}

TEST_F(StatusLineOfTheWindow, TellsTheFileThatWasOpened) {
  EXPECT_EQ(fileName(), "no file");
  test::store(twoVariables(), file("problem"));
  open("problem");
  EXPECT_EQ(fileName(), "problem");
  EXPECT_EQ(block(), "block 1 of 2");
}

TEST_F(StatusLineOfTheWindow, TellsTheFileThatWasSaved) {
  declare("1", "x");
  dialogs.expectAndType(pathOf("saved"));
  press(Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(fileName(), "saved");
}

TEST_F(StatusLineOfTheWindow, TellsTheWorkFileAfterValuesWereAdded) {
  declare("1", "x");
  dialogs.expectAndType("2");
  click("cmdAddVars(0)");
  EXPECT_EQ(fileName(), "FUNCTION *");
  EXPECT_EQ(message(), "Save writes the file FUNCTION now; Save As keeps the problem elsewhere");
}

TEST_F(StatusLineOfTheWindow, ALongFileNameDoesNotWidenTheWindow) {
  const int width = window->minimumSizeHint().width();
  const QString name(200, QLatin1Char('n'));
  test::store(twoVariables(), file(name));
  open(name);
  EXPECT_EQ(label("lblFileName").text(), name);
  EXPECT_LT(window->minimumSizeHint().width(), width + 100);
  EXPECT_LE(window->width(), 660);
}

TEST_F(StatusLineOfTheWindow, TheDesktopIsToldTheFileAndTheCaptionStays) {
  test::store(twoVariables(), file("problem"));
  open("problem");
  EXPECT_EQ(window->windowFilePath(), pathOf("problem"));
  EXPECT_EQ(window->windowTitle(), "Tavimor");
}

struct RefusedCase {
  const char* name;
  const char* field;
  const char* text;
  const char* hint;
};
void PrintTo(const RefusedCase& entry, std::ostream* stream) { *stream << entry.field << " \"" << entry.text << '"'; }

class RefusedFields : public StatusLineOfTheWindow, public testing::WithParamInterface<RefusedCase> {};

TEST_P(RefusedFields, SayWhyUntilTheyAreChanged) {
  const auto& [name, field, text, hint] = GetParam();
  declare("1", "x");
  enter(field, text);
  EXPECT_EQ(message(), "");
  press(Qt::Key_Tab);
  EXPECT_EQ(focusName(), field);
  EXPECT_EQ(message(), hint);
  press(Qt::Key_A, Qt::ControlModifier);
  type("1");
  EXPECT_EQ(message(), "");
}

INSTANTIATE_TEST_SUITE_P(
    All, RefusedFields,
    testing::Values(RefusedCase{"LowerLimit", "txtLL(0)", "1,5", "A number with a decimal point is needed here"},
                    RefusedCase{"UpperLimit", "txtUL(0)", "abc", "A number with a decimal point is needed here"},
                    RefusedCase{"Points", "txtPoints(0)", "1", "A number of 2 or more values is needed here"},
                    RefusedCase{"Degree", "txtTerms(0)", "2",
                                "A degree of 0 or more and below the number of values, 2, is needed here"}),
    [](const auto& param) { return param.param.name; });

TEST_F(StatusLineOfTheWindow, TellsWhyTheNumberOfVariablesIsRefused) {
  type("5");
  press(Qt::Key_Tab);
  EXPECT_EQ(message(), "1, 2, 3 or 4 variables are possible");
}

TEST_F(StatusLineOfTheWindow, TellsWhyNamesAreRefused) {
  declare("2", "x");
  EXPECT_EQ(message(), "2 names separated by commas are needed here, none of them empty");
}

TEST_F(StatusLineOfTheWindow, TellsWhyOneNameIsRefused) {
  declare("1", "x,y");
  EXPECT_EQ(message(), "One name is needed here, without a comma");
}

TEST_F(StatusLineOfTheWindow, ARefusedClickSaysWhyToo) {
  declare("1", "x");
  enter("txtLL(0)", "");
  click("cmdCompute");
  EXPECT_EQ(message(), "A number with a decimal point is needed here");
}

TEST_F(StatusLineOfTheWindow, TellsWhatAFitIsWorth) {
  test::store(twoVariables(), file("problem"));
  open("problem");
  model.F(0, 0, 0, 0) += 1;
  click("cmdCompute");
  EXPECT_TRUE(message().starts_with("6 coefficients, correlation ")) << message();
  EXPECT_NE(message().find(", standard error "), std::string::npos) << message();
}

TEST_F(StatusLineOfTheWindow, TellsWhyThereIsNoFit) {
  declare("1", "x");
  enter("txtUL(0)", "0");
  click("cmdCompute");
  EXPECT_EQ(message(), "No fit: values of a variable are equal, or too close to tell apart");
}

TEST_F(StatusLineOfTheWindow, TellsWhichDegreeHasNoRoom) {
  Dimension problem = twoVariables();
  problem.Degree[0] = 3;
  test::store(problem, file("problem"));
  open("problem");
  click("cmdCompute");
  EXPECT_EQ(message(), "No fit: the degree of x is not below its number of values");
}

TEST_F(StatusLineOfTheWindow, WhatAFitWasWorthGoesWithIt) {
  declare("1", "x");
  click("cmdCompute");
  EXPECT_NE(message(), "");
  enter("txtTerms(0)", "0");
  press(Qt::Key_Tab);
  EXPECT_EQ(message(), "");
}

}  // namespace
}  // namespace tavimor
