#include "platform/file_attributes.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#ifdef __linux__
#include <sys/xattr.h>
#endif

#include "platform/files.h"
#include "support/files.h"
#include "support/temporary_folder.h"

namespace tavimor {
namespace {

class FileAttributes : public test::FolderTest {
 protected:
  FileAttributes() { test::writeBytes(original(), "old"); }

  std::string original() const { return folder / "original"; }

  struct stat statusOfTaker() const {
    const FileHandle file = createFile(folder / "new", Access::Private);
    EXPECT_TRUE(takeAttributes(file.get(), original()));
    struct stat status = {};
    EXPECT_EQ(fstat(fileno(file.get()), &status), 0);
    return status;
  }
};

TEST_F(FileAttributes, PermissionsAreTaken) {
  for (const mode_t mode : {0600, 0640, 0644, 0666}) {
    chmod(original().c_str(), mode);
    EXPECT_EQ(statusOfTaker().st_mode & 07777, mode);
    std::filesystem::remove(folder / "new");
  }
}

TEST_F(FileAttributes, OwnerAndGroupAreTakenWhereTheUserMay) {
  if (geteuid() != 0) GTEST_SKIP() << "only the superuser may give files away";
  ASSERT_EQ(chown(original().c_str(), 65534, 12), 0);
  const struct stat status = statusOfTaker();
  EXPECT_EQ(status.st_uid, 65534u);
  EXPECT_EQ(status.st_gid, 12u);
}

TEST_F(FileAttributes, OfNothingAreNotTaken) {
  std::filesystem::remove(original());
  EXPECT_EQ(statusOfTaker().st_mode & 07777, 0600u);
}

#ifdef __linux__

TEST_F(FileAttributes, ExtendedOnesAreTaken) {
  if (setxattr(original().c_str(), "user.origin", "lab 3", 5, 0) != 0)
    GTEST_SKIP() << "the file system has no extended attributes";
  statusOfTaker();
  char value[8] = {};
  EXPECT_EQ(getxattr((folder / "new").c_str(), "user.origin", value, sizeof value), 5);
  EXPECT_STREQ(value, "lab 3");
}

#endif

}  // namespace
}  // namespace tavimor
