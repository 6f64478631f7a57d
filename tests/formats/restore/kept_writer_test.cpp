#include "formats/restore/kept_writer.h"

#include <gmock/gmock.h>

#include "formats/restore/restorable.h"
#include "support/faulty_steps.h"
#include "support/files.h"
#include "support/stored_problems.h"
#include "support/temporary_folder.h"

namespace tavimor {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

class KeptWriterTest : public test::FolderTest {
 protected:
  static std::shared_ptr<const SessionProblem> marked(double mark) {
    SessionProblem made;
    made.problem = test::gridProblem({3});
    SetDisplayedSpecs(made.problem, made.fields);
    for (std::size_t n = 0; n < made.problem.F.size(); ++n) made.problem.F.data()[n] = mark;
    return std::make_shared<const SessionProblem>(std::move(made));
  }

  std::vector<Restorable> all() const { return restorableProblems(folder / "tavimor"); }

  test::FaultySteps quick;
};

TEST_F(KeptWriterTest, TheLastThatWasHandedOverIsKept) {
  {
    KeptWriter writer(folder / "tavimor", quick);
    for (int mark = 1; mark <= 50; ++mark) writer.keep(marked(mark));
    writer.end(SessionEnd::Closed);
    EXPECT_TRUE(writer.isIdle());
    EXPECT_GT(writer.lastDuration().count(), 0);
  }
  ASSERT_THAT(all(), SizeIs(1));
  EXPECT_EQ(readKept(all()[0].folder).problem.F.data()[0], 50);
  EXPECT_EQ(all()[0].end, SessionEnd::Closed);
}

TEST_F(KeptWriterTest, WhatIsForgottenIsGone) {
  {
    KeptWriter writer(folder / "tavimor", quick);
    writer.keep(marked(1));
    writer.forget();
  }
  EXPECT_THAT(all(), IsEmpty());
}

TEST_F(KeptWriterTest, ARefusalIsToldInWordsOnceAndTheNextIsTriedAgain) {
  test::writeBytes(folder / "file", "");
  KeptWriter writer(folder / "file/tavimor", quick);
  writer.keep(marked(1));
  writer.end(SessionEnd::Closed);
  EXPECT_THAT(writer.takeFailure().value_or(""), HasSubstr("Run-time error"));
  EXPECT_EQ(writer.takeFailure(), std::nullopt);
  std::filesystem::remove(folder / "file");
  writer.keep(marked(2));
  writer.end(SessionEnd::Closed);
  EXPECT_EQ(writer.takeFailure(), std::nullopt);
  EXPECT_TRUE(writer.hasKept());
}

}  // namespace
}  // namespace tavimor
