#include "formats/restore/replaced_pair.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <random>

#include "formats/open_problem.h"
#include "formats/problem_writer.h"
#include "formats/restore/restorable.h"
#include "support/expect_error.h"
#include "support/faulty_steps.h"
#include "support/files.h"
#include "support/stored.h"
#include "support/stored_problems.h"
#include "support/temporary_folder.h"

namespace tavimor {
namespace {

namespace fs = std::filesystem;
using test::FaultySteps;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class ReplacedPairTest : public test::FolderTest {
 protected:
  std::string state() const { return folder / "tavimor"; }

  // Saves as the window does: the pair that is replaced is kept.
  void save(double mark, const std::string& name = "p", const ReplacedLimits& limits = {}) {
    ReplacedPair replaced(session, folder / name);
    test::store(test::markedProblem(mark), folder / name, quick);
    replaced.keep(limits);
  }

  std::vector<double> marks() {
    std::vector<double> found;
    for (const Restorable& one : restorableProblems(state())) {
      EXPECT_EQ(one.kind, KeptKind::Replaced);
      found.push_back(readKept(one.folder).fit.AvgGiven);
    }
    return found;
  }

  FaultySteps quick;
  KeptSession session{folder / "tavimor", quick};
};

TEST_F(ReplacedPairTest, AFirstSaveReplacesNothing) {
  save(1);
  EXPECT_THAT(marks(), IsEmpty());
}

TEST_F(ReplacedPairTest, TheLastTenOfAFileAreKept) {
  for (int mark = 1; mark <= 13; ++mark) save(mark);
  EXPECT_THAT(marks(), ElementsAre(12, 11, 10, 9, 8, 7, 6, 5, 4, 3));
}

TEST_F(ReplacedPairTest, ThoseOfAFileAreListedTogetherUnderItsPath) {
  for (int mark = 1; mark <= 3; ++mark) {
    save(mark, "a");
    save(10 + mark, "b");
  }
  EXPECT_THAT(marks(), ElementsAre(2, 1, 12, 11));
  const Restorable first = restorableProblems(state())[0];
  EXPECT_EQ(first.description.file, fs::canonical(folder / "a").string());
  EXPECT_THAT(first.description.names, ElementsAre("x", "y"));
  EXPECT_EQ(first.description.points, test::markedProblem(1).F.size());
}

TEST_F(ReplacedPairTest, HasTheBytesThatWereReplaced) {
  save(1);
  const std::string specification = test::readBytes(folder / "p"), values = test::readBytes(folder / "p.dat");
  save(2);
  const std::string kept = keptPair(restorableProblems(state()).at(0).folder);
  EXPECT_EQ(test::readBytes(kept), specification);
  EXPECT_EQ(test::readBytes(kept + ".dat"), values);
}

TEST_F(ReplacedPairTest, ASaveThatChangesNothingCostsNoOlderPair) {
  save(1);
  for (int n = 0; n < 20; ++n) save(2);
  EXPECT_THAT(marks(), ElementsAre(1));
}

TEST_F(ReplacedPairTest, AllTogetherStayWithinTheLimit) {
  save(1);
  save(2);
  std::uint64_t one = 0;
  for (const auto& entry : fs::recursive_directory_iterator(replacedFolder(state())))
    if (entry.is_regular_file()) one += entry.file_size();
  ReplacedLimits limits;
  limits.bytes = 3 * one + one / 2;
  for (int mark = 3; mark <= 9; ++mark) save(mark, mark % 2 == 0 ? "p" : "q", limits);
  EXPECT_THAT(marks(), SizeIs(3));
}

TEST_F(ReplacedPairTest, TheOldestGoesBeyond256MB) {
  constexpr std::uint64_t kHundredMB = 100 << 20;
  for (int mark = 1; mark <= 4; ++mark) save(mark);
  const std::vector<Restorable> before = restorableProblems(state());
  ASSERT_THAT(before, SizeIs(3));
  for (const Restorable& one : before) fs::resize_file(keptPair(one.folder) + ".dat", kHundredMB);
  save(5);
  EXPECT_THAT(restorableProblems(state()), SizeIs(3));
  EXPECT_TRUE(fs::exists(before[1].folder));
  EXPECT_FALSE(fs::exists(before[2].folder));
}

TEST_F(ReplacedPairTest, ASaveThatFailsKeepsNothing) {
  save(1);
  { ReplacedPair replaced(session, folder / "p"); }
  EXPECT_THAT(marks(), IsEmpty());
}

#ifndef _WIN32  // there a folder of the user is closed to others, and its files have no rights of their own

TEST_F(ReplacedPairTest, WhatIsKeptIsForItsOwnersEyes) {
  save(1);
  save(2);
  const fs::perms others = fs::perms::group_all | fs::perms::others_all;
  for (const auto& entry : fs::recursive_directory_iterator(state()))
    EXPECT_EQ(entry.status().permissions() & others, fs::perms::none) << entry.path();
}

#endif

TEST_F(ReplacedPairTest, AFileThatIsNoPairIsLeftAlone) {
  test::writeBytes(folder / "p", "text");
  { ReplacedPair replaced(session, folder / "p"); }
  EXPECT_FALSE(fs::exists(state()));
}

TEST_F(ReplacedPairTest, ARefusedStepIsAnErrorAndLeavesNothing) {
  save(1);
  test::FaultySteps full({{1, test::Fault::Refused}});
  KeptSession other(state(), full);
  test::expectError(ErrorNumber::DiskFull, [&] { ReplacedPair(other, folder / "p"); });
  EXPECT_THAT(marks(), IsEmpty());
}

}  // namespace
}  // namespace tavimor
