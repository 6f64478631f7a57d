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

TEST_F(FilePairRights, AnOrdinaryUserSavesWhereBothMayBeWritten) {
  allow(folder.path(), fs::perms::all);
  allow(folder / "p", fs::perms::all);
  allow(folder / "p.dat", fs::perms::all);
  EXPECT_EQ(errorOfSave(), 0);
}

}  // namespace
}  // namespace tavimor

#endif
