#include "platform/file_query.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>

#include "support/child_process.h"
#include "support/files.h"
#include "support/temporary_folder.h"

namespace tavimor {
namespace {

namespace fs = std::filesystem;

class FileQuery : public test::FolderTest {
 protected:
  FileFacts facts(const std::string& name, LastLink lastLink = LastLink::Keep) const {
    FileFacts told;
    EXPECT_TRUE(queryFile(folder / name, lastLink, told));
    return told;
  }
};

TEST_F(FileQuery, TellsWhatStandsThere) {
  test::writeBytes(folder / "file", "12345");
  fs::create_symlink("file", folder / "link");
  EXPECT_EQ(facts("file").kind, FileKind::Regular);
  EXPECT_EQ(facts("file").size, 5u);
  EXPECT_EQ(facts("link").kind, FileKind::Link);
  EXPECT_EQ(facts("link", LastLink::Follow).kind, FileKind::Regular);
  EXPECT_EQ(facts("").kind, FileKind::Other);
}

TEST_F(FileQuery, TwoNamesOfOneFileAreThatFile) {
  test::writeBytes(folder / "file", "1");
  test::writeBytes(folder / "other", "1");
  fs::create_hard_link(folder / "file", folder / "name");
  EXPECT_TRUE(facts("file").isSameFileAs(facts("name")));
  EXPECT_FALSE(facts("file").isSameFileAs(facts("other")));
  EXPECT_FALSE(facts("none").isSameFileAs(facts("none")));
}

TEST_F(FileQuery, NothingStandsThereIsAnAnswer) {
  test::writeBytes(folder / "file", "1");
  EXPECT_EQ(facts("none").kind, FileKind::Missing);
  EXPECT_EQ(facts("file/below").kind, FileKind::Missing);
  EXPECT_EQ(facts(std::string(300, 'x')).kind, FileKind::Missing);
}

TEST_F(FileQuery, ARefusalIsNone) {
  test::writeBytes(folder / "file", "1");
  fs::permissions(folder.path(), fs::perms::none);
  EXPECT_EQ(test::exitCodeOfChild([&] {
              test::becomeOrdinaryUser();
              FileFacts told;
              _exit(queryFile(folder / "file", LastLink::Keep, told) ? 0 : errno);
            }),
            EACCES);
  fs::permissions(folder.path(), fs::perms::owner_all);
}

}  // namespace
}  // namespace tavimor
