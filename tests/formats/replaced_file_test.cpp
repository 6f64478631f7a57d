#include "formats/replaced_file.h"

#include <gmock/gmock.h>

#include <filesystem>

#include "support/expect_error.h"
#include "support/faulty_steps.h"
#include "support/files.h"
#include "support/temporary_folder.h"

namespace tavimor {
namespace {

using test::Fault;
using test::FaultySteps;
using testing::ElementsAre;

class ReplacedFile : public test::FolderTest {
 protected:
  std::string path() const { return folder / "out"; }
};

TEST_F(ReplacedFile, HoldsTheBytesAndHasNothingBesideIt) {
  replaceFile(path(), "new\n");
  EXPECT_EQ(test::readBytes(path()), "new\n");
  EXPECT_THAT(test::namesIn(folder.path()), ElementsAre("out"));
}

#ifndef _WIN32  // links are made by the superuser alone there, and by Wine never

TEST_F(ReplacedFile, IsTheOneThatALinkLeadsTo) {
  test::writeBytes(folder / "real", "old");
  std::filesystem::create_symlink("real", path());
  replaceFile(path(), "new");
  EXPECT_TRUE(std::filesystem::is_symlink(path()));
  EXPECT_EQ(test::readBytes(folder / "real"), "new");
}

#endif

TEST_F(ReplacedFile, MustNotBeAFolder) {
  std::filesystem::create_directory(path());
  test::expectError(ErrorNumber::PathFileAccess, [&] { replaceFile(path(), "new"); });
}

TEST_F(ReplacedFile, StaysAsItWasWhereAStepIsRefused) {
  FaultySteps counter;
  test::writeBytes(path(), "old");
  replaceFile(path(), "new", counter);
  const int toTheRenaming = counter.count() - 1;  // the last step flushes the folder
  for (int step = 1; step <= toTheRenaming; ++step) {
    SCOPED_TRACE("step " + std::to_string(step));
    test::writeBytes(path(), "old");
    FaultySteps steps({{step, Fault::Refused}});
    test::expectError(ErrorNumber::DiskFull, [&] { replaceFile(path(), "new", steps); });
    EXPECT_EQ(test::readBytes(path()), "old");
    EXPECT_THAT(test::namesIn(folder.path()), ElementsAre("out"));
  }
}

}  // namespace
}  // namespace tavimor
