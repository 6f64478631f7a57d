#include "formats/tables/table_text.h"

#include "runtime/run_time_error.h"
#include "support/expect_error.h"
#include "support/files.h"
#include "support/temporary_folder.h"

namespace tavimor::test {

class TableTextTest : public FolderTest {};

TEST_F(TableTextTest, HoldsAllBytesOfAFile) {
  const std::string bytes = "1,2\r\n" + std::string(200000, '3') + "\n";
  writeBytes(folder / "t", bytes);
  EXPECT_EQ(TableText::ofFile(folder / "t").view(), bytes);
}

TEST_F(TableTextTest, AnEmptyFileIsAnEmptyText) {
  writeBytes(folder / "t", "");
  EXPECT_TRUE(TableText::ofFile(folder / "t").view().empty());
}

TEST_F(TableTextTest, AFileThatIsNotThereIsAnError) {
  expectError(ErrorNumber::FileNotFound, [&] { TableText::ofFile(folder / "none"); });
}

TEST_F(TableTextTest, AFolderIsAnError) {
  expectError(ErrorNumber::PathFileAccess, [&] { TableText::ofFile(folder.path()); });
}

}  // namespace tavimor::test
