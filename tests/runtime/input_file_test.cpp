#include "runtime/input_file.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <span>
#include <vector>

#include "support/expect_error.h"
#include "support/files.h"
#include "support/temporary_folder.h"

namespace tavimor {
namespace {

using test::expectBadFile;

class InputFileFields : public test::FolderTest {
 protected:
  InputFile opened(const std::string& bytes) {
    test::writeBytes(folder / "file", bytes);
    return InputFile(folder / "file");
  }

  static std::vector<double> read(InputFile& file, std::size_t count) {
    std::vector<double> numbers(count);
    file.readDoubles("a number", numbers);
    return numbers;
  }

  std::string text(const std::string& bytes) { return opened(bytes).readText("a text"); }
};

TEST_F(InputFileFields, EndAtACommaOrAtALineEnd) {
  InputFile file = opened("1,2\r\n3\n 4 \r\n5");
  for (int n = 1; n <= 5; ++n) EXPECT_EQ(file.readDouble("a number"), n);
  file.expectEnd();
}

TEST_F(InputFileFields, MayAllStandOnOneLineOrEachOnItsOwn) {
  for (const std::string separator : {",", "\n", "\r\n", " , ", "\t\r\n\t"}) {
    InputFile file = opened("\"x\"" + separator + ".5" + separator + "#TRUE#" + separator + "7" + separator + "*");
    EXPECT_EQ(file.readText("a text"), "x");
    EXPECT_EQ(file.readDouble("a number"), 0.5);
    EXPECT_TRUE(file.readBoolean("a mark"));
    EXPECT_EQ(file.readLong("a count"), 7);
    EXPECT_EQ(file.readText("a text"), "*");
    file.expectEnd();
  }
}

TEST_F(InputFileFields, NumbersComeInEveryForm) {
  InputFile file = opened(" 3 \r\n .5 \r\n-2.25 \r\n0.5,-.5,+4,1E+15,1e-5,INF,-INF,NAN,1.79769313486232E+308");
  const std::vector<double> numbers = read(file, 11);
  EXPECT_EQ(std::vector<double>(numbers.begin(), numbers.begin() + 8),
            (std::vector<double>{3, 0.5, -2.25, 0.5, -0.5, 4, 1e15, 1e-5}));
  EXPECT_TRUE(std::isinf(numbers[8]) && numbers[8] > 0);
  EXPECT_TRUE(std::isinf(numbers[9]) && numbers[9] < 0);
  EXPECT_TRUE(std::isnan(numbers[10]));
  EXPECT_EQ(file.readDouble("a number"), std::numeric_limits<double>::max());
}

TEST_F(InputFileFields, ManyNumbersComeInTheirOrderWhateverTheirLines) {
  std::string bytes;
  std::vector<double> wanted;
  for (int n = 0; n < 20000; ++n) {
    const bool isPrinted = n % 500 < 480;
    bytes += (isPrinted ? " " : "") + std::to_string(n) + (isPrinted ? ".5 \r\n" : n % 2 == 0 ? ".5," : ".5\n");
    wanted.push_back(n + 0.5);
  }
  InputFile file = opened(bytes + "x");
  EXPECT_EQ(read(file, wanted.size()), wanted);
  const auto lines = std::count(bytes.begin(), bytes.end(), '\n');
  expectBadFile("line " + std::to_string(lines + 1) + ": expected the end of the file, found \"x\"",
                [&] { file.expectEnd(); });
}

TEST_F(InputFileFields, NoMoreNumbersAreTakenThanAsked) {
  InputFile file = opened(" 1 \r\n 2 \r\n 3 \r\n");
  EXPECT_EQ(read(file, 0), std::vector<double>{});
  EXPECT_EQ(read(file, 2), (std::vector<double>{1, 2}));
  EXPECT_EQ(file.readLong("a count"), 3);
}

TEST_F(InputFileFields, AWholeNumberIsRoundedHalvesToEven) {
  InputFile file = opened("2.5,3.5,-0.4,1E3");
  EXPECT_EQ(file.readLong("a count"), 2);
  EXPECT_EQ(file.readLong("a count"), 4);
  EXPECT_EQ(file.readLong("a count"), 0);
  EXPECT_EQ(file.readLong("a count"), 1000);
}

TEST_F(InputFileFields, AByteOrderMarkIsSkipped) {
  EXPECT_EQ(text("\xEF\xBB\xBFx"), "x");
  EXPECT_EQ(opened("\xEF\xBB\xBF 3 \r\n").readLong("a count"), 3);
}

TEST_F(InputFileFields, AMarkIsReadInAnyCase) {
  InputFile file = opened("#TRUE#,#FALSE#\n#true#, #False# ");
  EXPECT_TRUE(file.readBoolean("a mark"));
  EXPECT_FALSE(file.readBoolean("a mark"));
  EXPECT_TRUE(file.readBoolean("a mark"));
  EXPECT_FALSE(file.readBoolean("a mark"));
}

TEST_F(InputFileFields, AQuotedTextLosesItsQuotesOnly) {
  EXPECT_EQ(text("\" x, y \",1"), " x, y ");
  EXPECT_EQ(text("\"\""), "");
  EXPECT_EQ(text("  \"x\"  \r\n"), "x");
}

TEST_F(InputFileFields, AnUnquotedTextGoesToTheNextCommaOrLineEnd) {
  EXPECT_EQ(text("  a b  ,c"), "a b");
  EXPECT_EQ(text("a\r\nb"), "a");
  EXPECT_EQ(text("a\"b\",c"), "a\"b\"");
  EXPECT_EQ(text(",c"), "");
  EXPECT_EQ(text("\r\nc"), "");
}

// The closing quote is the one that a comma or the line's end follows.
TEST_F(InputFileFields, AQuotedTextMayHoldQuotes) {
  EXPECT_EQ(text("\"5\" disk\",1"), "5\" disk");
  EXPECT_EQ(text("\"5\"\",1"), "5\"");
  EXPECT_EQ(text("\"\"\",1"), "\"");
  EXPECT_EQ(text("\"\"\"\"\r\n"), "\"\"");
  EXPECT_EQ(text("\"a\" \"b\" \r\n"), "a\" \"b");
}

TEST_F(InputFileFields, BytesThatAreNoUtf8AreLatin1) {
  EXPECT_EQ(text("\"Gr\xF6\xDF"
                 "e\",1"),
            "Größe");
  EXPECT_EQ(text("Gr\xF6\xDF"
                 "e"),
            "Größe");
  EXPECT_EQ(text("\"Größe\""), "Größe");
}

TEST_F(InputFileFields, ACarriageReturnAloneEndsNothingButTheFile) {
  EXPECT_EQ(text("a\rb\r\n"), "a\rb");
  InputFile file = opened("5\r");
  EXPECT_EQ(file.readLong("a count"), 5);
  file.expectEnd();
}

TEST_F(InputFileFields, TheRestOfAFileHoldsAFieldInTwoBytesAtMost) {
  InputFile file = opened("1,2,3");
  EXPECT_EQ(file.mostFieldsLeft(), 3u);
  file.readLong("a count");
  EXPECT_EQ(file.mostFieldsLeft(), 2u);
  file.readLong("a count");
  EXPECT_EQ(file.mostFieldsLeft(), 1u);
}

TEST_F(InputFileFields, BlankLinesMayFollowTheLastField) {
  for (const char* end : {"", "\n", "\r\n", "\r\n\r\n \t\r\n", "  ", "\r\n\r", "\n\n\n"}) {
    InputFile file = opened(std::string("1") + end);
    file.readLong("a count");
    EXPECT_NO_THROW(file.expectEnd());
  }
}

TEST_F(InputFileFields, NothingElseMayFollowTheLastField) {
  InputFile file = opened("1\r\n\r\n\r\n 2 \r\n");
  file.readLong("a count");
  expectBadFile("line 4: expected the end of the file, found \"2\"", [&] { file.expectEnd(); });
  InputFile comma = opened("1\n,");
  comma.readLong("a count");
  expectBadFile("line 2: expected the end of the file, found nothing", [&] { comma.expectEnd(); });
}

}  // namespace
}  // namespace tavimor
