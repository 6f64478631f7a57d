#include "formats/restore/kept_session.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <nlohmann/json.hpp>

#include "formats/restore/restorable.h"
#include "model/value_lists.h"
#include "platform/crash_note.h"
#include "platform/system_run.h"
#include "support/child_process.h"
#include "support/expect_error.h"
#include "support/faulty_steps.h"
#include "support/files.h"
#include "support/stored_problems.h"
#include "support/temporary_folder.h"

#ifndef _WIN32
#include <sys/resource.h>

#include <csignal>
#endif

namespace tavimor {
namespace {

namespace fs = std::filesystem;
using test::Fault;
using test::FaultySteps;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

SessionProblem sessionProblem(Dimension model) {
  SessionProblem made;
  made.problem = model;
  made.fit = model;
  SetDisplayedSpecs(model, made.fields);
  for (Long k = 0; k <= model.LastVar; ++k) made.fields[k].txtExpansion = "*";
  return made;
}

SessionProblem marked(double mark) {
  SessionProblem made = sessionProblem(test::gridProblem({3, 2}));
  for (std::size_t n = 0; n < made.problem.F.size(); ++n) made.problem.F.data()[n] = mark;
  return made;
}

double markOf(const std::string& folder) {
  const Problem problem = readKept(folder).problem;
  const double mark = problem.F.data()[0];
  for (std::size_t n = 0; n < problem.F.size(); ++n) EXPECT_EQ(problem.F.data()[n], mark);
  return mark;
}

class KeptSessionTest : public test::FolderTest {
 protected:
  std::string state() const { return folder / "state/tavimor"; }
  std::vector<Restorable> all() const { return restorableProblems(state()); }

  // How a session has ended that could say nothing.
  static SessionEnd withoutAWord() { return systemRun().empty() ? SessionEnd::Unknown : SessionEnd::Killed; }

  // Leaves a problem that was kept in another run of the system, or in one that had no name.
  void leaveFromRun(const nlohmann::json& run) {
    {
      KeptSession session(state(), quick);
      session.keep(marked(1));
    }
    const std::string path = all().at(0).folder + "/description.json";
    nlohmann::json description = nlohmann::json::parse(test::readBytes(path));
    description["systemRun"] = run;
    test::writeBytes(path, description.dump());
  }

  FaultySteps quick;
};

TEST_F(KeptSessionTest, MakesNothingBeforeThereIsSomethingToKeep) {
  { KeptSession session(state(), quick); }
  EXPECT_FALSE(fs::exists(folder / "state"));
}

TEST_F(KeptSessionTest, WhatItKeptCanBeHadAgainWhenItIsDead) {
  {
    KeptSession session(state(), quick);
    session.keep(marked(1));
    session.keep(marked(2));
    EXPECT_THAT(all(), IsEmpty());
  }
  ASSERT_THAT(all(), SizeIs(1));
  EXPECT_EQ(markOf(all()[0].folder), 2);
  EXPECT_EQ(all()[0].end, withoutAWord());
  EXPECT_THAT(all()[0].description.names, ElementsAre("x", "y"));
  EXPECT_EQ(all()[0].description.points, 6u);
  EXPECT_LE(secondsNow() - all()[0].description.when, 60);
}

TEST_F(KeptSessionTest, TellsHowItHasEnded) {
  for (const SessionEnd end : {SessionEnd::Closed, SessionEnd::ToldToEnd, SessionEnd::RunTimeError}) {
    {
      KeptSession session(state(), quick);
      session.keep(marked(1));
      session.noteEnd(end);
    }
    ASSERT_THAT(all(), SizeIs(1));
    EXPECT_EQ(all()[0].end, end);
    removeRestorable(all()[0]);
    EXPECT_THAT(all(), IsEmpty());
  }
}

TEST_F(KeptSessionTest, OneThatWasThereBeforeTheSystemStartedAnewWasNotJustKilled) {
  leaveFromRun("another run");
  EXPECT_EQ(all().at(0).end, systemRun().empty() ? SessionEnd::Unknown : SessionEnd::SystemRestarted);
}

TEST_F(KeptSessionTest, WhereTheRunOfTheSystemIsNotKnownTheEndIsNot) {
  leaveFromRun("");
  EXPECT_EQ(all().at(0).end, SessionEnd::Unknown);
}

TEST_F(KeptSessionTest, NumberAndNamesAreKeptBeforeThereIsAProblem) {
  SessionProblem before;
  before.typedNames = {"2", "temp", true};
  {
    KeptSession session(state(), quick);
    session.keep(before);
  }
  ASSERT_THAT(all(), SizeIs(1));
  EXPECT_THAT(all()[0].description.names, ElementsAre("temp"));
  EXPECT_EQ(all()[0].description.points, 0u);
  EXPECT_EQ(readKept(all()[0].folder).typedNames, before.typedNames);
  EXPECT_TRUE(haveSameWork(readKept(all()[0].folder), before));
  EXPECT_FALSE(haveSameWork(readKept(all()[0].folder), marked(1)));
}

TEST_F(KeptSessionTest, WhatWasSavedIsNotRestored) {
  {
    KeptSession session(state(), quick);
    session.keep(marked(1));
    session.forget();
  }
  EXPECT_THAT(all(), IsEmpty());
  EXPECT_THAT(test::namesIn(state() + "/sessions"), IsEmpty());
}

TEST_F(KeptSessionTest, TwoAtOnceKeepEachTheirOwn) {
  {
    KeptSession first(state(), quick), second(state(), quick);
    first.keep(marked(1));
    second.keep(marked(2));
    first.forget();
  }
  ASSERT_THAT(all(), SizeIs(1));
  EXPECT_EQ(markOf(all()[0].folder), 2);
}

TEST_F(KeptSessionTest, KeepsTheFieldsAndWhatAPairDoesNotHold) {
  SessionProblem before = sessionProblem(test::gridProblem({3, 1}));
  valueList(before.problem, 1) = {2.5};
  before.fields[0].txtLL = "-1.";
  before.fields[0].txtTerms = "";
  before.problem.VarName[0] = "\xCE\xB1\"";
  before.numberIsOpen[0] = true;
  before.problem.ValuesGiven[0] = false;
  before.file = "/home/me/prob";
  {
    KeptSession session(state(), quick);
    session.keep(before);
  }
  const SessionProblem after = readKept(all().at(0).folder);
  EXPECT_EQ(after.fields[0].txtLL, "-1.");
  EXPECT_EQ(after.problem.LowerLimit[0], -1);
  EXPECT_EQ(after.fields[0].txtTerms, "");
  EXPECT_EQ(after.problem.Degree[0], before.problem.Degree[0]);
  EXPECT_EQ(after.fields[1].txtExpansion, "*");
  EXPECT_EQ(after.problem.VarName, before.problem.VarName);
  EXPECT_THAT(after.numberIsOpen, ElementsAre(true, false, false, false));
  EXPECT_FALSE(after.problem.ValuesGiven[0]);
  EXPECT_THAT(after.problem.X1, ElementsAre(2.5));
  EXPECT_EQ(after.file, "/home/me/prob");
}

TEST_F(KeptSessionTest, ANumberOfValuesThatHasNotReachedTheModelIsTaken) {
  SessionProblem typed = marked(4);
  typed.fields[0].txtPoints = "5";
  {
    KeptSession session(state(), quick);
    session.keep(typed);
  }
  const SessionProblem after = readKept(all().at(0).folder);
  EXPECT_EQ(after.problem.LastPoint[0], 4);
  EXPECT_EQ(after.problem.F(2, 1, 0, 0), 4);
  EXPECT_EQ(after.fields[0].txtPoints, "5");
}

TEST_F(KeptSessionTest, EachStepThatIsRefusedLeavesWhatWasKeptBefore) {
  FaultySteps counter;
  {
    KeptSession session(state(), counter);
    session.keep(marked(1));
  }
  const int ofOne = counter.count();
  for (int step = ofOne + 1; step <= 2 * ofOne; ++step) {
    SCOPED_TRACE("step " + std::to_string(step));
    removeFolder(state());
    FaultySteps steps({{step, Fault::Refused}});
    {
      KeptSession session(state(), steps);
      session.keep(marked(1));
      try {
        session.keep(marked(2));
      } catch (const RunTimeError& error) {
        EXPECT_EQ(error.number(), ErrorNumber::DiskFull);
      }
    }
    ASSERT_THAT(all(), SizeIs(1));
    EXPECT_THAT(markOf(all()[0].folder), testing::AnyOf(1, 2));
  }
}

#ifndef _WIN32  // it has no fork, and links are made by the superuser alone there

TEST_F(KeptSessionTest, ALinkInThePlaceOfTheFolderIsNotFollowed) {
  fs::create_directories(folder / "state");
  fs::create_directory(folder / "elsewhere");
  fs::create_directory_symlink(folder / "elsewhere", state());
  KeptSession session(state(), quick);
  test::expectError(ErrorNumber::PermissionDenied, [&] { session.keep(marked(1)); });
  EXPECT_THAT(test::namesIn(folder / "elsewhere"), IsEmpty());
  EXPECT_THAT(all(), IsEmpty());
}

TEST_F(KeptSessionTest, ACrashIsTold) {
  EXPECT_EQ(test::signalThatEnds([&] {
              const rlimit noCore{0, 0};
              setrlimit(RLIMIT_CORE, &noCore);
              watchCrashes();
              KeptSession session(state(), quick);
              session.keep(marked(1));
              std::abort();
            }),
            SIGABRT);
  ASSERT_THAT(all(), SizeIs(1));
  EXPECT_EQ(all()[0].end, SessionEnd::Crashed);
  EXPECT_EQ(markOf(all()[0].folder), 1);
}

TEST_F(KeptSessionTest, OneThatIsKilledAtAnyStepLeavesAWholeProblem) {
  FaultySteps counter;
  {
    KeptSession session(state(), counter);
    session.keep(marked(1));
  }
  const int ofOne = counter.count();
  for (int step = ofOne + 1; step <= 2 * ofOne; ++step) {
    SCOPED_TRACE("killed at step " + std::to_string(step));
    removeFolder(state());
    EXPECT_EQ(test::exitCodeOfChild([&] {
                FaultySteps steps({{step, Fault::Killed}});
                KeptSession session(state(), steps);
                session.keep(marked(1));
                session.keep(marked(2));
              }),
              test::kKilled);
    ASSERT_THAT(all(), SizeIs(1));
    EXPECT_EQ(all()[0].end, withoutAWord());
    EXPECT_THAT(markOf(all()[0].folder), testing::AnyOf(1, 2));
    EXPECT_TRUE(hasUnsavedProblems(state()));
  }
}

TEST_F(KeptSessionTest, IsForItsOwnersEyes) {
  KeptSession session(state(), quick);
  session.keep(marked(1));
  const fs::perms others = fs::perms::group_all | fs::perms::others_all;
  EXPECT_EQ(fs::status(state()).permissions() & others, fs::perms::none);
  int files = 0;
  for (const auto& entry : fs::recursive_directory_iterator(state())) {
    EXPECT_EQ(entry.status().permissions() & others, fs::perms::none) << entry.path();
    files += entry.is_regular_file();
  }
  EXPECT_EQ(files, 4);  // the pair, the description, the lock
}

// What a user may not write to keeps nothing, and hinders nothing but that.
TEST_F(KeptSessionTest, AFolderOfAnotherUserIsNotTouched) {
  fs::create_directories(state());
  fs::permissions(folder.path(), fs::perms::all);
  fs::permissions(state(), fs::perms::all);
  EXPECT_EQ(test::exitCodeOfChild([&] {
              if (geteuid() != 0)
                _exit(static_cast<int>(ErrorNumber::PermissionDenied));  // the folder is one's own then
              test::becomeOrdinaryUser();
              try {
                KeptSession(state(), quick).keep(marked(1));
              } catch (const RunTimeError& error) {
                _exit(static_cast<int>(error.number()));
              }
            }),
            static_cast<int>(ErrorNumber::PermissionDenied));
  EXPECT_THAT(test::namesIn(state()), IsEmpty());
}

#endif

TEST_F(KeptSessionTest, OfMoreThanFiftyTheLastAreListed) {
  for (int n = 0; n < 52; ++n) {
    KeptSession session(state(), quick);
    session.keep(marked(n));
  }
  EXPECT_THAT(all(), SizeIs(50));
  EXPECT_THAT(test::namesIn(state() + "/sessions"), SizeIs(50));
}

}  // namespace
}  // namespace tavimor
