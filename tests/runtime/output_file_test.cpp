#include "runtime/output_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <limits>
#include <vector>

#include "runtime/number_text.h"
#include "support/expect_error.h"
#include "support/files.h"
#include "support/temporary_folder.h"

namespace tavimor {
namespace {

using test::expectError;

class OutputFileBytes : public test::FolderTest {
 protected:
  template <class Write>
  std::string written(Write write) {
    OutputFile file(folder / "file", systemFileSteps());
    write(file);
    file.finish();
    std::string bytes = test::readBytes(folder / "file");
    std::filesystem::remove(folder / "file");
    return bytes;
  }
};

TEST_F(OutputFileBytes, APrintLineIsANumberWithSignAndBlank) {
  EXPECT_EQ(written([](OutputFile& file) {
              file.print(Long{3});
              file.print(Long{-3});
              file.print(0.5);
              file.print(-2.25);
              file.print(1e-5);
              file.print(std::numeric_limits<double>::infinity());
            }),
            " 3 \r\n-3 \r\n .5 \r\n-2.25 \r\n 1E-05 \r\n INF \r\n");
}

TEST_F(OutputFileBytes, AWriteLineIsARecordWithoutBlanks) {
  EXPECT_EQ(written([](OutputFile& file) {
              file.write(std::string("x"), 0.0, 1.0, -0.5, false, 1e15, Long{2});
              file.write(true);
              file.write("a literal", std::string("5\" disk"), std::string());
            }),
            "\"x\",0,1,-.5,#FALSE#,1E+15,2\r\n#TRUE#\r\n\"a literal\",\"5\" disk\",\"\"\r\n");
}

TEST_F(OutputFileBytes, NothingWrittenIsAnEmptyFile) {
  EXPECT_EQ(written([](OutputFile&) {}), "");
}

TEST_F(OutputFileBytes, LinesMadeTogetherAreThoseOneByOne) {
  std::vector<double> numbers;
  for (int n = 0; n < 100000; ++n) numbers.push_back((n - 1e4) / 7.0);
  const std::string oneByOne = written([&](OutputFile& file) {
    for (const double number : numbers) file.print(number);
  });
  std::vector<char> room;
  EXPECT_TRUE(written([&](OutputFile& file) { file.printLines(printedLines(numbers, room)); }) == oneByOne);
}

TEST_F(OutputFileBytes, ManyLinesComeWholeAndInOrder) {
  std::string wanted;
  const std::string got = written([&](OutputFile& file) {
    for (Long n = 0; n < 50000; ++n) {
      file.print(n);
      wanted += " " + std::to_string(n) + " \r\n";
    }
  });
  EXPECT_TRUE(got == wanted);
}

TEST_F(OutputFileBytes, WhatStandsThereAlreadyIsNotWrittenTo) {
  test::writeBytes(folder / "file", "mine");
  std::vector<const char*> names = {"file"};
#ifndef _WIN32  // links are made by the superuser alone there, and by Wine never
  std::filesystem::create_symlink("file", folder / "link");
  names.push_back("link");
#endif
  for (const char* name : names)
    expectError(ErrorNumber::PathFileAccess, [&] { OutputFile(folder / name, systemFileSteps()); });
  EXPECT_EQ(test::readBytes(folder / "file"), "mine");
}

TEST_F(OutputFileBytes, WhatCannotBeCreatedNamesTheFileThatTheUserKnows) {
  expectError(ErrorNumber::PathNotFound, [&] { OutputFile(folder / "none/file", systemFileSteps()); });
  expectError(ErrorNumber::PathFileAccess, [&] { OutputFile(folder.path(), systemFileSteps()); });
  try {
    OutputFile file(folder / "none/file", systemFileSteps(), folder / "target");
    ADD_FAILURE();
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.path(), folder / "target");
  }
}

#ifdef __linux__
TEST_F(OutputFileBytes, AFullDiskIsReported) {
  struct FullDisk : FileSteps {
    FileHandle create(const std::string&, Access) override { return FileHandle(std::fopen("/dev/full", "wb")); }
  } steps;
  OutputFile file(folder / "file", steps);
  file.print(Long{1});
  expectError(ErrorNumber::DiskFull, [&] { file.finish(); });
}
#endif

}  // namespace
}  // namespace tavimor
