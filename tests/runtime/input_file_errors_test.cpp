#include <gtest/gtest.h>

#include <filesystem>

#include "runtime/input_file.h"
#include "support/expect_error.h"
#include "support/files.h"
#include "support/temporary_folder.h"

#ifndef _WIN32
#include <sys/stat.h>
#endif

namespace tavimor {
namespace {

using test::expectBadFile;
using test::expectError;

class InputFileErrors : public test::FolderTest {
 protected:
  InputFile opened(const std::string& bytes) {
    test::writeBytes(folder / "file", bytes);
    return InputFile(folder / "file");
  }

  void expectNoNumber(const std::string& bytes, const std::string& found) {
    expectBadFile("line 1: expected the limit (a number), found " + found,
                  [&] { opened(bytes).readDouble("the limit"); });
  }
};

TEST_F(InputFileErrors, NameTheFileTheLineAndBothSides) {
  InputFile file = opened("1\r\n2,3\r\nx,4\r\n");
  for (int n = 0; n < 3; ++n) file.readDouble("a number");
  try {
    file.readDouble("the limit");
    ADD_FAILURE();
  } catch (const BadFile& error) {
    EXPECT_EQ(error.path(), folder / "file");
    EXPECT_EQ(error.place, "line 3");
    EXPECT_EQ(error.expected, "the limit (a number)");
    EXPECT_EQ(error.found, "\"x\"");
  }
}

TEST_F(InputFileErrors, ANumberMustFillItsField) {
  expectNoNumber("1.5abc\r\n", "\"1.5abc\"");
  expectNoNumber("1 2\n", "\"1 2\"");
  expectNoNumber("1;2\n", "\"1;2\"");
  expectNoNumber("1.5\rx\n", "\"1.5?x\"");
  expectNoNumber("\"1\",2", "\"\"1\",2\"");
  expectNoNumber("#TRUE#", "\"#TRUE#\"");
  expectNoNumber("1E,2", "\"1E\"");
  expectNoNumber("inf", "\"inf\"");
  expectNoNumber("1E400,2", "\"1E400\"");
  expectNoNumber(" -1e309 \r\n", "\"-1e309\"");
}

TEST_F(InputFileErrors, AnEmptyFieldIsNoNumber) {
  expectNoNumber(",2", "nothing");
  expectNoNumber("\r\n2", "nothing");
  expectNoNumber("", "the end of the file");
  expectNoNumber("   ", "the end of the file");
}

TEST_F(InputFileErrors, WhatStandsThereIsShownShortAndPrintable) {
  expectNoNumber("a\tb\x1B[31m\x7F", "\"a?b?[31m?\"");
  expectNoNumber(std::string(39, 'x') + "üü", "\"" + std::string(39, 'x') + "ü\"");
  expectNoNumber(std::string(100, 'x'), "\"" + std::string(40, 'x') + "\"");
  expectNoNumber("\xFC", "\"ü\"");
}

TEST_F(InputFileErrors, AWholeNumberHasLimits) {
  const auto expectRefused = [&](const std::string& bytes) {
    expectBadFile("line 1: expected the degree (a whole number from 0 to 9), found \"" + bytes + "\"",
                  [&] { opened(bytes).readLong("the degree", 0, 9); });
  };
  EXPECT_EQ(opened("0").readLong("the degree", 0, 9), 0);
  EXPECT_EQ(opened("9.4").readLong("the degree", 0, 9), 9);
  for (const char* outside : {"-1", "10", "9.6", "1E30", "INF", "-INF", "NAN"}) expectRefused(outside);
}

TEST_F(InputFileErrors, AMarkIsTrueOrFalse) {
  for (const std::string bytes : {"TRUE", "1", "#TRUE", "#YES#", "#TRUE##", "\"#TRUE#\""})
    expectBadFile("line 1: expected the flag (#TRUE# or #FALSE#), found \"" + bytes + "\"",
                  [&] { opened(bytes).readBoolean("the flag"); });
  expectBadFile("line 1: expected the flag, found the end of the file", [&] { opened("").readBoolean("the flag"); });
}

TEST_F(InputFileErrors, AQuoteMustBeClosedOnItsLine) {
  const auto expectUnclosed = [&](const std::string& bytes, const std::string& shown) {
    expectBadFile("line 1: expected the name with a closing quotation mark, found " + shown + " and no such mark",
                  [&] { opened(bytes).readText("the name"); });
  };
  expectUnclosed("\"x", "\"\"x\"");
  expectUnclosed("\"", "\"\"\"");
  expectUnclosed("\"x\r\n\"", "\"\"x\"");
  expectUnclosed("\"x\"y,1\r\n2\r\n", "\"\"x\"y,1\"");
}

TEST_F(InputFileErrors, AFileThatEndsHasNoMoreFields) {
  InputFile file = opened("1\r\n");
  file.readLong("a count");
  const std::string atEnd = ", found the end of the file";
  expectBadFile("line 2: expected the name" + atEnd, [&] { file.readText("the name"); });
  expectBadFile("line 2: expected the limit (a number)" + atEnd, [&] { file.readDouble("the limit"); });
}

TEST_F(InputFileErrors, WhatCannotBeOpenedHasARunTimeError) {
  test::writeBytes(folder / "file", "1");
  expectError(ErrorNumber::FileNotFound, [&] { InputFile(folder / "none"); });
  expectError(ErrorNumber::PathNotFound, [&] { InputFile(folder / "none/none"); });
  expectError(ErrorNumber::PathNotFound, [&] { InputFile(folder / "file/none"); });
  expectError(ErrorNumber::PathFileAccess, [&] { InputFile(folder.path()); });
  expectError(ErrorNumber::FileNotFound, [] { InputFile(""); });
}

#ifndef _WIN32

TEST_F(InputFileErrors, WhatIsNoRegularFileIsRefusedWithoutWaiting) {
  ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
  expectError(ErrorNumber::PathFileAccess, [&] { InputFile(folder / "pipe"); });
  expectError(ErrorNumber::PathFileAccess, [] { InputFile("/dev/zero"); });
}

TEST_F(InputFileErrors, LinksAreFollowedUnlessTheyTurnInACircle) {
  test::writeBytes(folder / "file", "7");
  std::filesystem::create_symlink("file", folder / "link");
  EXPECT_EQ(InputFile(folder / "link").readLong("a count"), 7);
  std::filesystem::create_symlink("circle", folder / "circle");
  expectError(ErrorNumber::PathFileAccess, [&] { InputFile(folder / "circle"); });
  std::filesystem::create_symlink("none", folder / "dangling");
  expectError(ErrorNumber::FileNotFound, [&] { InputFile(folder / "dangling"); });
}

#endif

}  // namespace
}  // namespace tavimor
