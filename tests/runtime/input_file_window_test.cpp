// The reader holds 256 KiB of the file at a time: whatever stands at that edge must be read as it would be elsewhere.
#include <gtest/gtest.h>

#include <span>

#include "runtime/input_file.h"
#include "support/expect_error.h"
#include "support/files.h"
#include "support/temporary_folder.h"

namespace tavimor {
namespace {

using test::expectBadFile;

constexpr std::size_t kWindow = std::size_t{256} * 1024;

class InputFileWindow : public test::FolderTest {
 protected:
  // A file in which `tail` begins `before` bytes ahead of the window's edge; all that stands before is read already.
  InputFile openedAtEdge(const std::string& tail, std::size_t before) {
    std::string bytes = "\"" + std::string(kWindow - before - 3, 'x') + "\"\n" + tail;
    test::writeBytes(folder / "file", bytes);
    InputFile file(folder / "file");
    EXPECT_EQ(file.readText("a text").size(), kWindow - before - 3);
    return file;
  }

  template <class Check>
  void inEveryPosition(const std::string& tail, Check check) {
    for (std::size_t before = 0; before <= tail.size() + 1; ++before) {
      SCOPED_TRACE(before);
      InputFile file = openedAtEdge(tail, before);
      check(file);
      if (HasFailure()) return;
    }
  }

  // Numbers in front as well, so that the window is refilled where its rest gets short.
  template <class Check>
  void inEveryPositionBehindNumbers(const std::string& tail, Check check) {
    for (std::size_t shift = 0; shift <= tail.size() + 70; ++shift) {
      SCOPED_TRACE(shift);
      std::string bytes(kWindow - tail.size() - 70 + shift, ' ');
      for (std::size_t n = 0; n + 2 <= bytes.size(); n += 2) bytes.replace(n, 2, "1,");
      std::vector<double> numbers(bytes.size() / 2);
      test::writeBytes(folder / "file", bytes + tail);
      InputFile file(folder / "file");
      file.readDoubles("a number", numbers);
      check(file);
      if (HasFailure()) return;
    }
  }
};

TEST_F(InputFileWindow, NumbersAreReadWholeAtTheEdge) {
  const auto check = [](InputFile& file) {
    EXPECT_EQ(file.readDouble("a number"), -1.25e-10);
    EXPECT_EQ(file.readDouble("a number"), 7);
    EXPECT_EQ(file.readLong("a count"), 12345678);
    file.expectEnd();
  };
  inEveryPosition("-1.25E-10 \r\n 7 ,12345678\r\n", check);
  inEveryPositionBehindNumbers("-1.25E-10 \r\n 7 ,12345678\r\n", check);
}

TEST_F(InputFileWindow, ALongNumeralIsReadWholeAtTheEdge) {
  const std::string digits = "1." + std::string(90, '0');
  const auto check = [](InputFile& file) {
    EXPECT_EQ(file.readDouble("a number"), 1e5);
    EXPECT_EQ(file.readDouble("a number"), 2);
    file.expectEnd();
  };
  inEveryPosition(digits + "E+05\r\n2", check);
  inEveryPositionBehindNumbers(digits + "E+05\r\n2", check);
}

TEST_F(InputFileWindow, BlanksAreSkippedAcrossTheEdge) {
  const std::string blanks(100, ' ');
  inEveryPosition(blanks + "\"a b\"" + blanks + "\r\n" + blanks + "-INF" + blanks + ",#TRUE#\r\n" + blanks + "\r\n",
                  [](InputFile& file) {
                    EXPECT_EQ(file.readText("a text"), "a b");
                    EXPECT_LT(file.readDouble("a number"), -1e308);
                    EXPECT_TRUE(file.readBoolean("a mark"));
                    file.expectEnd();
                  });
}

TEST_F(InputFileWindow, TextsAndMarksAreReadWholeAtTheEdge) {
  const auto check = [](InputFile& file) {
    EXPECT_EQ(file.readText("a text"), "5\" disk, ü");
    EXPECT_EQ(file.readText("a text"), "plain");
    EXPECT_FALSE(file.readBoolean("a mark"));
    EXPECT_EQ(file.readText("a text"), "");
    EXPECT_EQ(file.readText("a text"), "\"");
    file.expectEnd();
  };
  inEveryPosition("\"5\" disk, ü\" \r\nplain,#FALSE#\r\n\"\",\"\"\"\r\n\r\n", check);
  inEveryPositionBehindNumbers("\"5\" disk, ü\" \r\nplain,#FALSE#\r\n\"\",\"\"\"\r\n\r\n", check);
}

TEST_F(InputFileWindow, LinesAreCountedAcrossTheEdge) {
  inEveryPosition("1\r\n2\r\n\r\n3\r\n", [](InputFile& file) {
    file.readLong("a count");
    file.readLong("a count");
    expectBadFile("line 5: expected the end of the file, found \"3\"", [&] { file.expectEnd(); });
  });
}

TEST_F(InputFileWindow, AFieldMayFillTheWindow) {
  const std::string digits(kWindow - 3, '0');
  test::writeBytes(folder / "file", "1\r\n" + digits + "7\r\n" + digits + "8,\"" + digits + "\"");
  InputFile file(folder / "file");
  EXPECT_EQ(file.readDouble("a number"), 1);
  EXPECT_EQ(file.readDouble("a number"), 7);
  EXPECT_EQ(file.readDouble("a number"), 8);
  EXPECT_EQ(file.readText("a text"), digits);
}

TEST_F(InputFileWindow, ALongerFieldIsRefused) {
  for (const std::string filling : {"0", "1", "x", " "}) {
    std::string field;
    for (std::size_t n = 0; n < kWindow + 10; ++n) field += filling;
    test::writeBytes(folder / "file", "1\r\n5" + field + ",2\r\n");
    InputFile file(folder / "file");
    file.readLong("a count");
    if (filling != "x")
      expectBadFile("line 2: expected the limit (a number), found a field that is too long",
                    [&] { file.readDouble("the limit"); });
    expectBadFile("line 2: expected the name, found a field that is too long", [&] { file.readText("the name"); });
    expectBadFile("line 2: expected the flag, found a field that is too long", [&] { file.readBoolean("the flag"); });
  }
}

TEST_F(InputFileWindow, AQuoteThatIsNotClosedWithinTheWindowIsRefused) {
  test::writeBytes(folder / "file", "\"" + std::string(kWindow, 'x') + "\"\r\n");
  expectBadFile("line 1: expected the name with a closing quotation mark, found \"\"" + std::string(39, 'x') +
                    "\" and no such mark",
                [&] { InputFile(folder / "file").readText("the name"); });
}

TEST_F(InputFileWindow, ManyBlanksBeforeAFieldDoNotMakeItLong) {
  const std::string blanks(2 * kWindow + 17, ' ');
  test::writeBytes(folder / "file", blanks + "4\r\n" + blanks + "\"x\"\r\n" + blanks + "\r\n" + blanks);
  InputFile file(folder / "file");
  EXPECT_EQ(file.readLong("a count"), 4);
  EXPECT_EQ(file.readText("a text"), "x");
  file.expectEnd();
}

}  // namespace
}  // namespace tavimor
