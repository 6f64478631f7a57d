#include "platform/file_lock.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <csignal>
#include <filesystem>

#include "support/child_process.h"
#include "support/files.h"
#include "support/temporary_folder.h"

namespace tavimor {
namespace {

namespace fs = std::filesystem;
using Attempt = FileLock::Attempt;

class FileLockTest : public test::FolderTest {
 protected:
  std::string path() const { return folder / "lock"; }

  // What a program leaves that is killed while it holds the lock.
  void leaveLockOfKilledProgram() const {
    test::signalThatEnds([&] {
      FileLock lock(path());
      lock.tryAcquire();
      std::raise(SIGKILL);
    });
    ASSERT_TRUE(fs::exists(path()));
  }

  // The lock is had, and nothing but what was there is left of it.
  void expectToBeHadOnce() const {
    const std::vector<std::string> others = namesWithoutLock();
    {
      FileLock lock(path());
      ASSERT_EQ(lock.tryAcquire(), Attempt::Acquired);
      FileLock second(path());
      EXPECT_EQ(second.tryAcquire(), Attempt::InTheWay);
    }
    EXPECT_EQ(test::namesIn(folder.path()), others);
  }

 private:
  std::vector<std::string> namesWithoutLock() const {
    std::vector<std::string> names = test::namesIn(folder.path());
    std::erase(names, "lock");
    return names;
  }
};

TEST_F(FileLockTest, OneHolderAtATimeHasItAndLeavesNothing) { expectToBeHadOnce(); }

TEST_F(FileLockTest, SaysWhoIsInTheWay) {
  FileLock lock(path());
  ASSERT_EQ(lock.tryAcquire(), Attempt::Acquired);
  FileLock second(path());
  ASSERT_EQ(second.tryAcquire(), Attempt::InTheWay);
  EXPECT_TRUE(second.holder().starts_with("process " + std::to_string(getpid()) + " on ")) << second.holder();
}

TEST_F(FileLockTest, IsFreeAgainWhenReleased) {
  FileLock lock(path()), second(path());
  ASSERT_EQ(lock.tryAcquire(), Attempt::Acquired);
  lock.release();
  EXPECT_EQ(second.tryAcquire(), Attempt::Acquired);
}

TEST_F(FileLockTest, DiesWithItsHolder) {
  leaveLockOfKilledProgram();
  expectToBeHadOnce();
}

TEST_F(FileLockTest, NeverWritesThroughALink) {
  test::writeBytes(folder / "precious", "mine");
  fs::create_symlink("precious", path());
  expectToBeHadOnce();
  fs::create_hard_link(folder / "precious", path());
  expectToBeHadOnce();
  EXPECT_EQ(test::readBytes(folder / "precious"), "mine");
}

TEST_F(FileLockTest, IsRefusedWhereAPipeOrAFolderStands) {
  ASSERT_EQ(mkfifo(path().c_str(), 0600), 0);
  EXPECT_EQ(FileLock(path()).tryAcquire(), Attempt::Refused);
  fs::remove(path());
  fs::create_directory(path());
  EXPECT_EQ(FileLock(path()).tryAcquire(), Attempt::Refused);
  EXPECT_EQ(FileLock(folder / "none/lock").tryAcquire(), Attempt::Refused);
}

TEST_F(FileLockTest, OfAnotherUserIsInTheWayToo) {
  fs::permissions(folder.path(), fs::perms::all);
  FileLock lock(path());
  ASSERT_EQ(lock.tryAcquire(), Attempt::Acquired);
  EXPECT_EQ(test::exitCodeOfChild([&] {
              test::becomeOrdinaryUser();
              _exit(static_cast<int>(FileLock(path()).tryAcquire()));
            }),
            static_cast<int>(Attempt::InTheWay));
}

}  // namespace
}  // namespace tavimor
