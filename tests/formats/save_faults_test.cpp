// Whatever happens while a problem is saved: the pair that is read afterwards is the old one or the new one.
#include <gtest/gtest.h>

#include "formats/problem_reader.h"
#include "support/child_process.h"
#include "support/expect_error.h"
#include "support/faulty_steps.h"
#include "support/pair_files.h"
#include "support/stored.h"
#include "support/stored_problems.h"

#ifdef _WIN32
#include "platform/helper_program.h"
#endif

namespace tavimor {
namespace {

using test::Fault;
using test::FaultySteps;
using test::markedProblem;

constexpr double kOld = 1, kNew = 2;

class SaveFaults : public test::PairTest, public testing::WithParamInterface<bool> {
 protected:
  bool thereIsAnOldPair() const { return GetParam(); }

  void begin() const {
    for (const std::string& name : test::namesIn(folder.path())) std::filesystem::remove(folder / name);
    FaultySteps steps;
    if (thereIsAnOldPair()) test::store(markedProblem(kOld), path(), steps);
  }

  void save(FaultySteps& steps) const { test::store(markedProblem(kNew), path(), steps); }

  int countSteps() const {
    begin();
    FaultySteps steps;
    save(steps);
    return steps.count();
  }

  // The mark of the pair that is read, 0 where there is none.
  double readMark() const {
    Dimension model;
    try {
      model = read();
    } catch (const RunTimeError& error) {
      EXPECT_EQ(error.number(), ErrorNumber::FileNotFound);
      return 0;
    }
    test::expectSameProblem(model, markedProblem(model.AvgGiven));
    return model.AvgGiven;
  }

  double oldMark() const { return thereIsAnOldPair() ? kOld : 0; }

  void expectOldOrNew() const {
    const double mark = readMark();
    EXPECT_TRUE(mark == oldMark() || mark == kNew) << mark;
  }

  // The next save works and leaves nothing but the pair.
  void expectTidyAfterNextSave() const {
    FaultySteps steps;
    save(steps);
    EXPECT_EQ(readMark(), kNew);
    EXPECT_EQ(test::namesIn(folder.path()), (std::vector<std::string>{"p", "p.dat"}));
  }
};

TEST_P(SaveFaults, ARefusedStepLeavesTheOldPairAndNothingElse) {
  const int count = countSteps();
  for (int step = 1; step <= count; ++step) {
    SCOPED_TRACE("step " + std::to_string(step) + " of " + std::to_string(count));
    begin();
    const std::vector<std::string> names = test::namesIn(folder.path());
    FaultySteps steps({{step, Fault::Refused}});
    try {
      save(steps);
      // Only what tidies up behind a finished save is refused without an error.
      EXPECT_EQ(readMark(), kNew);
      EXPECT_GT(step, count - (thereIsAnOldPair() ? 2 : 1));
    } catch (const RunTimeError& error) {
      EXPECT_EQ(error.number(), ErrorNumber::DiskFull);
      EXPECT_EQ(readMark(), oldMark());
      EXPECT_EQ(test::namesIn(folder.path()), names);
    }
    expectTidyAfterNextSave();
  }
}

TEST_P(SaveFaults, TwoRefusedStepsLeaveAWholePair) {
  const int count = countSteps();
  for (int first = 1; first <= count; ++first)
    for (int second = first + 1; second <= first + 8; ++second) {
      SCOPED_TRACE("steps " + std::to_string(first) + " and " + std::to_string(second));
      begin();
      FaultySteps steps({{first, Fault::Refused}, {second, Fault::Refused}});
      try {
        save(steps);
      } catch (const RunTimeError& error) {
        EXPECT_EQ(error.number(), ErrorNumber::DiskFull);
      }
      expectOldOrNew();
      expectTidyAfterNextSave();
    }
}

INSTANTIATE_TEST_SUITE_P(WriteProblem, SaveFaults, testing::Bool(), [](const auto& thereIsAnOldPair) {
  return thereIsAnOldPair.param ? "OverAnOldPair" : "WhereThereIsNone";
});

class KilledSaves : public SaveFaults {
 protected:
  // How a process ends that saves with these faults.
  int exitCodeOfSave(const std::map<int, Fault>& faults) const {
#ifdef _WIN32
    std::vector<std::string> arguments = {path()};
    for (const auto& [step, fault] : faults)
      arguments.push_back(std::to_string(step) + (fault == Fault::Killed ? "killed" : "refused"));
    return runProgram(helperProgram("faulty-saver").value(), arguments);
#else
    return test::exitCodeOfChild([&] {
      FaultySteps steps(faults);
      save(steps);
    });
#endif
  }
};

TEST_P(KilledSaves, LeaveTheOldPairUntilTheNewValuesAreInPlace) {
  const int count = countSteps();
  double before = oldMark();
  for (int step = 1; step <= count; ++step) {
    SCOPED_TRACE("step " + std::to_string(step));
    begin();
    ASSERT_EQ(exitCodeOfSave({{step, Fault::Killed}}), test::kKilled);
    expectOldOrNew();
    const double mark = readMark();
    EXPECT_GE(mark, before) << "the new pair was there already";
    before = mark;
    expectTidyAfterNextSave();
  }
  EXPECT_EQ(before, kNew);
}

// Thousands of processes: too slow where none can be forked.
#ifndef _WIN32

TEST_P(KilledSaves, LeaveAWholePairOnTheWayBackToo) {
  const int count = countSteps();
  for (int refused = 1; refused <= count; ++refused)
    for (int killed = refused + 1; killed <= refused + 8; ++killed) {
      SCOPED_TRACE("refused " + std::to_string(refused) + ", killed " + std::to_string(killed));
      begin();
      exitCodeOfSave({{refused, Fault::Refused}, {killed, Fault::Killed}});
      expectOldOrNew();
      expectTidyAfterNextSave();
    }
}

// The next save is killed as well, anywhere while it tidies up or does its own work.
TEST_P(KilledSaves, LeaveAWholePairWhenTheNextOneIsKilledToo) {
  const int count = countSteps();
  for (int first = 1; first <= count; ++first)
    for (int second = 1; second <= count + 3; ++second) {
      SCOPED_TRACE("killed at " + std::to_string(first) + ", then at " + std::to_string(second));
      begin();
      for (const int step : {first, second}) exitCodeOfSave({{step, Fault::Killed}});
      expectOldOrNew();
    }
}

#endif

INSTANTIATE_TEST_SUITE_P(WriteProblem, KilledSaves, testing::Bool(), [](const auto& thereIsAnOldPair) {
  return thereIsAnOldPair.param ? "OverAnOldPair" : "WhereThereIsNone";
});

}  // namespace
}  // namespace tavimor
