#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include "formats/open_problem.h"
#include "support/stored.h"
#include "ui/controls/application.h"
#include "ui/support/values_window_test.h"

namespace tavimor {
namespace {

using testing::ElementsAre;
using Values = std::vector<double>;

class AddingValues : public ValuesWindowTest {
 protected:
  double f(Long i, Long j) const { return model.F(i, j, 0, 0); }
};

TEST_F(AddingValues, OpensTheWindowWithTheNewValuesZero) {
  add(0, "2");
  EXPECT_THAT(column(), ElementsAre("0", "0.5", "1", "0", "0"));
  EXPECT_EQ(values().windowTitle(), QStringLiteral("Enter/edit values of variable: x"));
  EXPECT_EQ(textOf("txtPoints(0)"), "5");
  EXPECT_FALSE(check("chkSpaced(0)").isChecked());
  expectAgreement();
}

TEST_F(AddingValues, OpensTheGridAtTheFirstAddedValue) {
  add(0, "40");
  EXPECT_EQ(grid().Row(), 3);
  EXPECT_TRUE(grid().viewport()->rect().contains(grid().visualItemRect(grid().item(3, 1))));
  type("7");
  EXPECT_EQ(model.X0[3], 7);
  clickDone();
  add(0, "1");
  EXPECT_EQ(grid().Row(), 43);
  EXPECT_TRUE(grid().viewport()->rect().contains(grid().visualItemRect(grid().item(43, 1))));
}

TEST_F(AddingValues, CalledOffOpensNoWindow) {
  dialogs.expectAndCancel();
  click("cmdAddVars(0)");
  EXPECT_FALSE(values().isVisible());
  EXPECT_TRUE(window->isEnabled());
}

TEST_F(AddingValues, TheOldEntriesKeepTheirPlacesAndTheNewOnesAreZero) {
  add(0, "2");
  const Dimension before = twoVariables();
  ASSERT_EQ(model.F.last(), (PerVariable<Long>{4, 1}));
  for (Long i = 0; i <= 4; ++i)
    for (Long j = 0; j <= 1; ++j) EXPECT_EQ(f(i, j), i <= 2 ? before.F(i, j, 0, 0) : 0) << i << "," << j;
}

// The second addition reads back with the first variable's extent shortened by its own last count, so that what was
// typed at x(3) and x(4) meanwhile is lost.
TEST_F(AddingValues, ToASecondVariableReadsBackWithTheFirstOneShortened) {
  add(0, "2");
  clickDone();
  for (Long i = 3; i <= 4; ++i)
    for (Long j = 0; j <= 1; ++j) model.F(i, j, 0, 0) = 50 + i;
  add(1, "1");
  const Dimension before = twoVariables();
  ASSERT_EQ(model.F.last(), (PerVariable<Long>{4, 2}));
  for (Long i = 0; i <= 4; ++i)
    for (Long j = 0; j <= 2; ++j) EXPECT_EQ(f(i, j), i <= 2 && j <= 1 ? before.F(i, j, 0, 0) : 0) << i << "," << j;
  EXPECT_EQ(model.X1, (Values{0, 2, 0}));
}

// The same with the variables exchanged: two of each row's four entries are asked for, and so the rows run together.
TEST_F(AddingValues, ToTheFirstVariableAfterTheSecondLetsTheRowsRunTogether) {
  add(1, "2");
  clickDone();
  for (Long i = 0; i <= 2; ++i)
    for (Long j = 0; j <= 3; ++j) model.F(i, j, 0, 0) = 10 * i + j + 1;
  add(0, "1");
  ASSERT_EQ(model.F.last(), (PerVariable<Long>{3, 3}));
  const std::vector<double> written{1, 2, 3, 4, 11, 12, 13, 14, 21, 22, 23, 24};
  std::size_t n = 0;
  for (Long i = 0; i <= 3; ++i)
    for (Long j = 0; j <= 3; ++j) EXPECT_EQ(f(i, j), i <= 2 && j <= 1 ? written[n++] : 0) << i << "," << j;
}

TEST_F(AddingValues, TypedValuesOfTheNewRowsAreStored) {
  add(0, "2");
  clickCell(3);
  type("1.5");
  press(Qt::Key_Down);
  type("2");
  clickDone();
  EXPECT_EQ(model.X0, (Values{0, 0.5, 1, 1.5, 2}));
}

TEST_F(AddingValues, DropTheResultsOfAFit) {
  click("cmdCompute");
  ASSERT_TRUE(model.FitDone);
  add(0, "1");
  EXPECT_FALSE(model.FitDone);
  EXPECT_EQ(results().count(), 0);
}

TEST_F(AddingValues, APlainSaveGoesToTheWorkFileAfterwards) {
  add(0, "1");
  clickDone();
  press(Qt::Key_S, Qt::ControlModifier);
  EXPECT_TRUE(QFile::exists(pathOf("FUNCTION")));
  EXPECT_TRUE(QFile::exists(pathOf("FUNCTION.dat")));
}

TEST_F(AddingValues, AWorkFileThatCannotBeWrittenEndsTheProgramWithTheProblemSaved) {
  auto& application = *static_cast<Application*>(qApp);
  std::vector<int> endedWith;
  application.setEnding([&](int exitCode) { endedWith.push_back(exitCode); });
  application.setProblemSaver([this](const std::string& path) { test::store(model, path); });
  QDir().mkdir(pathOf("FUNCTION"));
  QString text;
  dialogs.expectAndType("2");
  dialogs.expectAndPress("Save a copy...", &text);
  dialogs.expectAndType(pathOf("copy"));
  click("cmdAddVars(0)");
  application.setEnding([](int) {});
  application.setProblemSaver({});

  EXPECT_TRUE(text.startsWith(QStringLiteral("Run-time error '75':"))) << text.toStdString();
  EXPECT_TRUE(text.contains(pathOf("FUNCTION"))) << text.toStdString();
  EXPECT_EQ(endedWith, std::vector<int>{1});
  EXPECT_FALSE(values().isVisible());
  const Dimension copy = test::stored(file("copy"));
  EXPECT_EQ(copy.X0, twoVariables().X0);
  for (Long i = 0; i <= 2; ++i)
    for (Long j = 0; j <= 1; ++j) EXPECT_EQ(copy.F(i, j, 0, 0), twoVariables().F(i, j, 0, 0));
}

}  // namespace
}  // namespace tavimor
