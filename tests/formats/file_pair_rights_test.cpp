#include <gtest/gtest.h>

#include <filesystem>

#include "formats/file_pair.h"
#include "support/child_process.h"
#include "support/expect_error.h"
#include "support/files.h"
#include "support/temporary_folder.h"

#ifndef _WIN32

namespace tavimor {
namespace {

namespace fs = std::filesystem;

class FilePairRights : public test::FolderTest {
 protected:
  FilePairRights() {
    test::writeBytes(folder / "p", "old");
    test::writeBytes(folder / "p.dat", "old");
  }

  void allow(const std::string& path, fs::perms permissions) { fs::permissions(path, permissions); }

  // The number of the run-time error with which an ordinary user's save ends.
  int errorOfSave() {
    return test::exitCodeOfChild([&] {
      test::becomeOrdinaryUser();
      try {
        FilePair(folder / "p").commit();
      } catch (const RunTimeError& error) {
        _exit(static_cast<int>(error.number()));
      }
    });
  }

  void expectUntouched() {
    EXPECT_EQ(test::namesIn(folder.path()), (std::vector<std::string>{"p", "p.dat"}));
    EXPECT_EQ(test::readBytes(folder / "p") + test::readBytes(folder / "p.dat"), "oldold");
  }
};

constexpr int kPermissionDenied = static_cast<int>(ErrorNumber::PermissionDenied);

TEST_F(FilePairRights, AFileThatMayNotBeWrittenIsNotReplaced) {
  allow(folder.path(), fs::perms::all);
  allow(folder / "p", fs::perms::all);
  allow(folder / "p.dat", fs::perms::owner_read | fs::perms::others_read);
  EXPECT_EQ(errorOfSave(), kPermissionDenied);
  expectUntouched();
}

TEST_F(FilePairRights, AFolderThatMayNotBeWrittenTakesNoSave) {
  allow(folder / "p", fs::perms::all);
  allow(folder / "p.dat", fs::perms::all);
  allow(folder.path(), fs::perms::owner_read | fs::perms::owner_exec | fs::perms::others_read | fs::perms::others_exec);
  EXPECT_EQ(errorOfSave(), kPermissionDenied);
  allow(folder.path(), fs::perms::owner_all);
  expectUntouched();
}

// The two files may be one: nobody can tell.
TEST_F(FilePairRights, AFileThatTheSystemDoesNotTellOfIsNotReplaced) {
  allow(folder.path(), fs::perms::all);
  allow(folder / "p", fs::perms::all);
  fs::create_directory(folder / "closed");
  test::writeBytes(folder / "closed/values", "old");
  fs::remove(folder / "p.dat");
  fs::create_symlink("closed/values", folder / "p.dat");
  allow(folder / "closed", fs::perms::none);
  EXPECT_EQ(errorOfSave(), kPermissionDenied);
  allow(folder / "closed", fs::perms::owner_all);
  EXPECT_EQ(test::readBytes(folder / "p") + test::readBytes(folder / "closed/values"), "oldold");
}

TEST_F(FilePairRights, WorkFilesAreForTheirOwnersEyes) {
  allow(folder / "p", fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
  {
    FilePair pair(folder / "p");
    for (const OutputFile* file : {&pair.specification(), &pair.values()})
      EXPECT_EQ(fs::status(file->path()).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    pair.commit();
  }
  EXPECT_EQ(fs::status(folder / "p").permissions(),
            fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
}

TEST_F(FilePairRights, ANewProblemHasThePermissionsOfAnyNewFile) {
  test::writeBytes(folder / "any", "new");
  FilePair(folder / "q").commit();
  EXPECT_EQ(fs::status(folder / "q").permissions(), fs::status(folder / "any").permissions());
  EXPECT_EQ(fs::status(folder / "q.dat").permissions(), fs::status(folder / "any").permissions());
}

TEST_F(FilePairRights, AnOrdinaryUserSavesWhereBothMayBeWritten) {
  allow(folder.path(), fs::perms::all);
  allow(folder / "p", fs::perms::all);
  allow(folder / "p.dat", fs::perms::all);
  EXPECT_EQ(errorOfSave(), 0);
}

}  // namespace
}  // namespace tavimor

#endif
