#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QScrollBar>
#include <csignal>

#include "platform/end_request.h"
#include "support/stored.h"
#include "ui/support/main_window_test.h"

namespace tavimor {
namespace {

class ComputeButton : public MainWindowTest {
 protected:
  ComputeButton() {
    test::store(twoVariables(), file("problem"));
    open("problem");
  }
};

TEST_F(ComputeButton, FindsTheKnownCoefficients) {
  click("cmdCompute");
  ASSERT_TRUE(model.FitDone);
  // f about the centres (0.5, 1): the derivatives of 1 + 2 x + 3 x^2 + 4 y there.
  EXPECT_NEAR(model.Coef(0, 0, 0, 0), twoVariablesAt(0.5, 1), 1e-12);
  EXPECT_NEAR(model.Coef(1, 0, 0, 0), 2 + 6 * 0.5, 1e-12);
  EXPECT_NEAR(model.Coef(2, 0, 0, 0), 3, 1e-12);
  EXPECT_NEAR(model.Coef(0, 1, 0, 0), 4, 1e-12);
}

TEST_F(ComputeButton, IsCalledOffByARequestToEnd) {
  watchEndRequests();
  std::raise(SIGTERM);
  click("cmdCompute");
  EXPECT_FALSE(model.FitDone);
  EXPECT_EQ(results().count(), 0);
  watchEndRequests();  // forgets the request
  click("cmdCompute");
  EXPECT_TRUE(model.FitDone);
  std::signal(SIGTERM, SIG_DFL);
}

TEST_F(ComputeButton, ListsTheResults) {
  click("cmdCompute");
  EXPECT_EQ(listing(), engineListing(model));
  EXPECT_TRUE(listing().starts_with("              CORRELATION COEFFICIENT="));
}

TEST_F(ComputeButton, ListsAnewEachTime) {
  click("cmdCompute");
  click("cmdCompute");
  EXPECT_EQ(listing(), engineListing(model));
}

TEST_F(ComputeButton, TakesTheFieldsAsTheyStand) {
  enter("txtUL(0)", "3");
  enter("txtExpansion(0)", "*");
  click("cmdCompute");
  EXPECT_EQ(model.X0, (std::vector<double>{0, 1.5, 3}));
  EXPECT_EQ(model.Centre[0], 1.5);
}

TEST_F(ComputeButton, ValuesThatAreNotEquallySpacedStay) {
  enter("txtUL(0)", "3");
  QTest::mouseClick(&check("chkSpaced(0)"), Qt::LeftButton, {}, {8, check("chkSpaced(0)").height() / 2});
  ASSERT_FALSE(check("chkSpaced(0)").isChecked());
  click("cmdCompute");
  EXPECT_EQ(model.X0, (std::vector<double>{0, 0.5, 1}));
}

TEST_F(ComputeButton, ShowsTheHourglassWhileItWorks) {
  Qt::CursorShape whileListing = Qt::ArrowCursor;
  QObject::connect(results().model(), &QAbstractItemModel::rowsInserted,
                   [&] { whileListing = QApplication::overrideCursor()->shape(); });
  click("cmdCompute");
  EXPECT_EQ(whileListing, Qt::WaitCursor);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(ComputeButton, WorksFromTheKeyboard) {
  button("cmdCompute").setFocus();
  press(Qt::Key_Space);
  EXPECT_TRUE(model.FitDone);
}

class Listing : public MainWindowTest {};

TEST_F(Listing, OfTenThousandCoefficientsAppearsAtOnce) {
  Dimension problem = twoVariables();
  problem.Degree = {99, 99};
  problem.LastPoint = {99, 99};
  problem.X0.resize(100);
  problem.X1.resize(100);
  problem.F.redim(problem.LastPoint);
  problem.Coef.redim(problem.Degree);
  problem.FitDone = true;
  test::store(problem, file("large"));
  QElapsedTimer timer;
  dialogs.expectAndType(pathOf("large"), [&timer] { timer.start(); });
  press(Qt::Key_O, Qt::ControlModifier);
  window->grab();
  EXPECT_LT(timer.elapsed(), 1500);
  EXPECT_EQ(listing(), engineListing(model));
}

TEST_F(Listing, DoesNotScrollSidewaysForTrailingBlanks) {
  declare("1", "x");
  click("cmdCompute");
  EXPECT_GT(results().text(7).size(), 255);
  EXPECT_EQ(results().horizontalScrollBar()->maximum(), 0);
}

}  // namespace
}  // namespace tavimor
