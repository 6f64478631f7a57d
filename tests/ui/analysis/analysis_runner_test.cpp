#include "ui/analysis/analysis_runner.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QTest>

#include "support/fitted_problem.h"
#include "support/stored_problems.h"

namespace tavimor {
namespace {

ListedProblem fitted(Dimension model) {
  for (std::size_t n = 0; n < model.F.size(); ++n) model.F.data()[n] = static_cast<double>(n * n % 101);
  return test::fitted(model);
}

// Some tenths of a second of work, so that it is running when the next thing happens.
ListedProblem longWork() {
  Dimension model = test::gridProblem({70, 70, 70});
  model.Degree = {9, 9, 9};
  return fitted(model);
}

class Runner : public testing::Test {
 protected:
  Runner() {
    QObject::connect(&runner, &AnalysisRunner::analysed,
                     [this](const std::shared_ptr<const Analysis>& analysis, const Advice&) {
                       terms.push_back(analysis->opinion.data.terms());
                       last = analysis;
                     });
  }

  std::vector<std::size_t> terms;
  std::shared_ptr<const Analysis> last;
  AnalysisRunner runner;
};

TEST_F(Runner, TellsTheAnalysisInTheThreadOfItsOwner) {
  const QThread* thread = nullptr;
  QObject::connect(&runner, &AnalysisRunner::analysed, [&] { thread = QThread::currentThread(); });
  runner.analyse(fitted(test::gridProblem({5})));
  EXPECT_TRUE(terms.empty()) << "not before the event loop runs";
  ASSERT_TRUE(QTest::qWaitFor([&] { return thread != nullptr; }));
  EXPECT_EQ(thread, QThread::currentThread());
  EXPECT_EQ(terms, std::vector<std::size_t>{2});
}

TEST_F(Runner, TheNextAnalysisCallsOffTheOneThatRuns) {
  runner.analyse(longWork());
  runner.analyse(fitted(test::gridProblem({5})));
  ASSERT_TRUE(QTest::qWaitFor([&] { return !terms.empty(); }));
  QTest::qWait(300);
  EXPECT_EQ(terms, std::vector<std::size_t>{2});
}

TEST_F(Runner, WhatIsCalledOffTellsNothing) {
  runner.analyse(fitted(test::gridProblem({5})));
  runner.callOff();
  EXPECT_EQ(runner.share(), std::nullopt);
  QTest::qWait(300);
  EXPECT_TRUE(terms.empty());
}

TEST_F(Runner, LeavesTheEventLoopFreeMeanwhile) {
  runner.analyse(longWork());
  EXPECT_TRUE(runner.share().has_value());
  QElapsedTimer pause;
  qint64 longest = 0;
  while (terms.empty()) {
    pause.start();
    QTest::qWait(1);
    longest = std::max(longest, pause.elapsed());
  }
  EXPECT_LT(longest, 250);
}

TEST_F(Runner, SearchesDegreesFirstWithoutPress) {
  runner.analyse(fitted(test::gridProblem({9, 9})));
  ASSERT_TRUE(QTest::qWaitFor([&] { return last != nullptr; }));
  std::vector<std::shared_ptr<const DegreeSearch>> found;
  QObject::connect(&runner, &AnalysisRunner::searched,
                   [&](const std::shared_ptr<const DegreeSearch>& degrees) { found.push_back(degrees); });
  runner.searchDegrees(last);
  ASSERT_TRUE(QTest::qWaitFor([&] { return found.size() == 2; }));
  EXPECT_EQ(found[0]->combinations.size(), 16U);
  EXPECT_TRUE(found[0]->press.empty());
  EXPECT_EQ(found[1]->press.size(), 16U);
}

TEST_F(Runner, AFailureIsToldAndEndsNothing) {
  std::string why;
  QObject::connect(&runner, &AnalysisRunner::failed, [&](const std::string& text) { why = text; });
  ListedProblem broken = fitted(test::gridProblem({5}));
  broken.problem.LastPoint[0] = 9;
  runner.analyse(std::move(broken));
  ASSERT_TRUE(QTest::qWaitFor([&] { return !why.empty(); }));
  EXPECT_EQ(why.rfind("Run-time error '9'", 0), 0U);
}

TEST(RunnerAtItsEnd, CallsOffWhatRunsAndWaitsShortly) {
  QElapsedTimer timer;
  {
    AnalysisRunner runner;
    runner.analyse(longWork());
    timer.start();
  }
  EXPECT_LT(timer.elapsed(), 1000);
}

}  // namespace
}  // namespace tavimor
