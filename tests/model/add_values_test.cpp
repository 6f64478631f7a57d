#include "model/add_values.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

#include "support/expect_error.h"
#include "support/faulty_steps.h"
#include "support/files.h"
#include "support/stored_problems.h"
#include "support/temporary_folder.h"

namespace tavimor {
namespace {

using test::expectError;
using Values = std::vector<double>;

class AddValues : public test::FolderTest {
 protected:
  Dimension grid(const std::vector<Long>& counts) const {
    Dimension model = test::gridProblem(counts);
    model.WorkDir = folder.path();
    model.FileName = "problem";
    return model;
  }

  static void add(Dimension& model, Long v, Long count) {
    model.AddCount[v] = count;
    addValues(model, v);
  }

  // What the table must be: its values, last index fastest, run into the new bounds, each axis shortened by the last
  // count that was added to it.
  static Table4 relaid(const Dimension& before, const PerVariable<Long>& newLast, const PerVariable<Long>& addCount) {
    const Values values = test::valuesLastIndexFastest(before.F);
    Table4 table;
    table.redim(newLast);
    std::size_t n = 0;
    for (Long i0 = 0; i0 <= newLast[0] - addCount[0]; ++i0)
      for (Long i1 = 0; i1 <= newLast[1] - addCount[1]; ++i1)
        for (Long i2 = 0; i2 <= newLast[2] - addCount[2]; ++i2)
          for (Long i3 = 0; i3 <= newLast[3] - addCount[3]; ++i3) table(i0, i1, i2, i3) = values[n++];
    return table;
  }
};

TEST_F(AddValues, TwoValuesMoreKeepTheOldEntriesInPlace) {
  Dimension model = grid({3, 2});
  const Dimension before = model;
  add(model, 0, 2);
  EXPECT_EQ(model.LastPoint, (PerVariable<Long>{4, 1, 0, 0}));
  EXPECT_EQ(model.F.last(), model.LastPoint);
  EXPECT_EQ(model.X0, (Values{0, 1, 2, 0, 0}));
  for (Long i0 = 0; i0 <= 4; ++i0)
    for (Long i1 = 0; i1 <= 1; ++i1) EXPECT_EQ(model.F(i0, i1, 0, 0), i0 <= 2 ? before.F(i0, i1, 0, 0) : 0);
}

TEST_F(AddValues, EveryVariableOfFourMayGrow) {
  for (Long v = 0; v < kMaxVariables; ++v) {
    const Dimension before = grid({2, 3, 2, 3});
    Dimension model = before;
    add(model, v, 2);
    Table4 wanted = before.F;
    wanted.resizeKeeping(model.LastPoint);
    EXPECT_EQ(test::valuesLastIndexFastest(model.F), test::valuesLastIndexFastest(wanted));
  }
}

TEST_F(AddValues, AgainToTheSameVariableKeepsTheEntriesToo) {
  Dimension model = grid({3, 2});
  add(model, 1, 1);
  model.F(2, 2, 0, 0) = 55;
  const Dimension before = model;
  add(model, 1, 3);
  Table4 wanted = before.F;
  wanted.resizeKeeping({2, 5, 0, 0});
  EXPECT_EQ(test::valuesLastIndexFastest(model.F), test::valuesLastIndexFastest(wanted));
}

TEST_F(AddValues, ASecondVariableReadsBackWithTheFirstOneShortened) {
  for (const auto& [first, second] : {std::pair<Long, Long>{0, 1}, {1, 0}}) {
    Dimension model = grid({3, 3});
    add(model, first, 2);
    for (std::size_t n = 0; n < model.F.size(); ++n) model.F.data()[n] = 1 + static_cast<double>(n);
    const Dimension before = model;
    add(model, second, 1);
    const Table4 wanted = relaid(before, model.LastPoint, model.AddCount);
    EXPECT_EQ(model.F.last(), wanted.last());
    EXPECT_EQ(test::valuesLastIndexFastest(model.F), test::valuesLastIndexFastest(wanted));
    EXPECT_EQ(model.F(model.LastPoint[0], model.LastPoint[1], 0, 0), 0);
  }
}

// Deleting after adding can shorten an axis to nothing: then nothing is read back.
TEST_F(AddValues, AnAxisShortenedBelowItsFirstValueLeavesTheTableEmpty) {
  Dimension model = grid({2, 2});
  model.AddCount[0] = 5;
  add(model, 1, 1);
  EXPECT_EQ(test::valuesLastIndexFastest(model.F), Values(6, 0.0));
}

TEST_F(AddValues, TheNumbersPassThroughTheirText) {
  Dimension model = grid({2});
  model.F(0, 0, 0, 0) = 1.0 / 3.0;
  add(model, 0, 1);
  EXPECT_EQ(model.F(0, 0, 0, 0), 0.333333333333333);
}

TEST_F(AddValues, ValuesThatWereNotGivenAreGeneratedFirst) {
  Dimension model = grid({3});
  model.ValuesGiven[0] = false;
  model.X0 = {0};
  model.LowerLimit[0] = 5;
  model.Step[0] = 0.5;
  add(model, 0, 2);
  EXPECT_EQ(model.X0, (Values{5, 5.5, 6, 0, 0}));
  EXPECT_TRUE(model.ValuesGiven[0]);
}

TEST_F(AddValues, FileNameIsTheWorkFileAfterwardsAlthoughThatIsGone) {
  Dimension model = grid({3});
  add(model, 0, 1);
  EXPECT_EQ(model.FileName, folder / "FUNCTION");
  EXPECT_EQ(test::namesIn(folder.path()), std::vector<std::string>{});
}

TEST_F(AddValues, AFileOfTheUsersUnderTheWorkFilesNameIsPutAside) {
  Dimension model = grid({3});
  for (const char* content : {"mine", "mine too"}) {
    test::writeBytes(folder / "FUNCTION", content);
    add(model, 0, 1);
  }
  EXPECT_EQ(test::namesIn(folder.path()), (std::vector<std::string>{"FUNCTION.1", "FUNCTION.2"}));
  EXPECT_EQ(test::readBytes(folder / "FUNCTION.1"), "mine");
  EXPECT_EQ(test::readBytes(folder / "FUNCTION.2"), "mine too");
}

TEST_F(AddValues, AProblemThatWasSavedUnderTheWorkFilesNameIsPutAsideWithItsValues) {
  Dimension model = grid({3});
  test::writeBytes(folder / "FUNCTION.1.dat", "another's values");
  test::writeBytes(folder / "FUNCTION", "specification");
  test::writeBytes(folder / "FUNCTION.dat", "values");
  add(model, 0, 1);
  EXPECT_EQ(test::namesIn(folder.path()), (std::vector<std::string>{"FUNCTION.1.dat", "FUNCTION.2", "FUNCTION.2.dat"}));
  EXPECT_EQ(test::readBytes(folder / "FUNCTION.2") + test::readBytes(folder / "FUNCTION.2.dat"), "specificationvalues");
}

TEST_F(AddValues, NoneMoreChangeNothing) {
  Dimension model = grid({3, 2});
  const Dimension before = model;
  add(model, 0, 0);
  test::expectSameProblem(model, before);
  EXPECT_EQ(model.FileName, "problem");
}

class RefusedAddValues : public AddValues {
 protected:
  template <class Action>
  static void expectUnchanged(Dimension& model, ErrorNumber number, Action action) {
    const Dimension before = model;
    expectError(number, action);
    test::expectSameProblem(model, before);
    EXPECT_EQ(model.FileName, before.FileName);
  }
};

TEST_F(RefusedAddValues, ANegativeCountIsAnError) {
  Dimension model = grid({3, 2});
  model.ValuesGiven[0] = false;
  for (const Long count : {-1, -2, -3, -100})
    expectUnchanged(model, ErrorNumber::SubscriptOutOfRange, [&] { add(model, 0, count); });
  EXPECT_TRUE(test::namesIn(folder.path()).empty());
}

TEST_F(RefusedAddValues, ACountThatNoLongHoldsOverflows) {
  Dimension model = grid({3});
  expectUnchanged(model, ErrorNumber::Overflow, [&] { add(model, 0, 2147483647); });
}

TEST_F(RefusedAddValues, ATableThatNoMemoryHoldsIsAnError) {
  Dimension model = grid({3, 3});
  expectUnchanged(model, ErrorNumber::OutOfMemory, [&] { add(model, 0, 2000000000); });
  EXPECT_TRUE(test::namesIn(folder.path()).empty());
}

TEST_F(RefusedAddValues, AWorkFolderThatIsMissingIsAnError) {
  Dimension model = grid({3});
  model.WorkDir = folder / "none";
  model.ValuesGiven[0] = false;
  expectUnchanged(model, ErrorNumber::PathNotFound, [&] { add(model, 0, 1); });
}

TEST_F(RefusedAddValues, AWorkFileThatCannotBeWrittenIsAnError) {
  Dimension model = grid({3});
  std::filesystem::create_directory(folder / "FUNCTION");
  expectUnchanged(model, ErrorNumber::PathFileAccess, [&] { add(model, 0, 1); });
  EXPECT_TRUE(std::filesystem::is_directory(folder / "FUNCTION"));
}

#ifndef _WIN32

TEST_F(RefusedAddValues, ALinkOrAPipeInTheWorkFilesPlaceIsAnError) {
  Dimension model = grid({3});
  test::writeBytes(folder / "precious", "mine");
  std::filesystem::create_symlink("precious", folder / "FUNCTION");
  expectUnchanged(model, ErrorNumber::PathFileAccess, [&] { add(model, 0, 1); });
  std::filesystem::remove(folder / "FUNCTION");
  ASSERT_EQ(mkfifo((folder / "FUNCTION").c_str(), 0600), 0);
  expectUnchanged(model, ErrorNumber::PathFileAccess, [&] { add(model, 0, 1); });
  EXPECT_EQ(test::readBytes(folder / "precious"), "mine");
  EXPECT_EQ(test::namesIn(folder.path()), (std::vector<std::string>{"FUNCTION", "precious"}));
}

#endif

TEST_F(RefusedAddValues, AnyRefusedStepLeavesTheModelAsItWas) {
  Dimension model = grid({3});
  test::FaultySteps counting;
  Dimension scratch = model;
  scratch.AddCount[0] = 1;
  addValues(scratch, 0, counting);
  ASSERT_GE(counting.count(), 5);  // create, write, flush, close, remove
  for (int step = 1; step <= counting.count(); ++step) {
    test::FaultySteps steps({{step, test::Fault::Refused}});
    model.AddCount[0] = 1;
    expectUnchanged(model, ErrorNumber::DiskFull, [&] { addValues(model, 0, steps); });
    EXPECT_TRUE(test::namesIn(folder.path()).empty()) << "step " << step;
  }
}

// A count that never came about, for instance, asks for more entries than there are.
TEST_F(RefusedAddValues, MoreToReadBackThanWasWrittenIsAnError) {
  Dimension model = grid({3, 2});
  model.F.redim({1, 1, 0, 0});
  expectUnchanged(model, ErrorNumber::InputPastEnd, [&] { add(model, 1, 1); });
  EXPECT_TRUE(test::namesIn(folder.path()).empty());
}

}  // namespace
}  // namespace tavimor
