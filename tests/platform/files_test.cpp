#include "platform/files.h"

#include <gtest/gtest.h>

#include "support/temporary_folder.h"

namespace tavimor {
namespace {

constexpr char kName[] =
    "Gr\xC3\xB6\xC3\x9F"
    "e in \xC2\xB5m";  // in UTF-8

class Files : public test::FolderTest {};

TEST_F(Files, APathIsTheSameAfterTheSystemHasHadIt) {
  EXPECT_EQ(utf8Path(nativePath(kName)), kName);
  EXPECT_EQ(utf8Path(nativePath("folder") / nativePath(kName)).substr(7), kName);
}

TEST_F(Files, AFileThatIsOpenedHasTheNameThatTheSystemKnows) {
  const std::string path = folder / kName;
  ASSERT_NE(createFile(path, Access::Private), nullptr);
  EXPECT_TRUE(std::filesystem::is_regular_file(nativePath(path)));
  for (const auto& entry : std::filesystem::directory_iterator(nativePath(folder.path())))
    EXPECT_EQ(utf8Path(entry.path().filename()), kName);
}

}  // namespace
}  // namespace tavimor
