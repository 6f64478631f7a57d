#include "runtime/print_lines.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "runtime/number_text.h"

namespace tavimor {
namespace {

using Numbers = std::vector<double>;

struct Taken {
  Numbers numbers;
  std::string rest;  // the text from the place that was returned
};

Taken take(std::string_view text, std::size_t most = 1000) {
  Taken taken;
  const char* last = text.data() + text.size();
  taken.rest = std::string(readPrintLines(text.data(), last, most, taken.numbers), last);
  return taken;
}

TEST(PrintLines, AreTakenAsOutputFileWritesThem) {
  const Taken taken = take(" 1 \r\n-2.5 \r\n 1.5E-07 \r\n 0 \r\n");
  EXPECT_EQ(taken.numbers, (Numbers{1, -2.5, 1.5e-7, 0}));
  EXPECT_EQ(taken.rest, "");
}

TEST(PrintLines, AreAppended) {
  Numbers numbers = {7};
  const std::string_view text = " 8 \r\n";
  readPrintLines(text.data(), text.data() + text.size(), 5, numbers);
  EXPECT_EQ(numbers, (Numbers{7, 8}));
}

TEST(PrintLines, EndAtTheMostThatIsAskedFor) {
  const Taken taken = take(" 1 \r\n 2 \r\n 3 \r\n", 2);
  EXPECT_EQ(taken.numbers, (Numbers{1, 2}));
  EXPECT_EQ(taken.rest, " 3 \r\n");
}

struct OtherForm {
  const char* name;
  const char* line;
};

class LineOfAnotherForm : public testing::TestWithParam<OtherForm> {};

TEST_P(LineOfAnotherForm, IsLeftWithAllBehindIt) {
  const std::string rest = GetParam().line + std::string(" 3 \r\n");
  const Taken taken = take(" 1 \r\n" + rest);
  EXPECT_EQ(taken.numbers, Numbers{1});
  EXPECT_EQ(taken.rest, rest);
}

INSTANTIATE_TEST_SUITE_P(Lines, LineOfAnotherForm,
                         testing::Values(OtherForm{"NoBlankAtTheEnd", " 2\r\n"}, OtherForm{"LineFeedAlone", " 2 \n"},
                                         OtherForm{"TwoBlanksInFront", "  2 \r\n"}, OtherForm{"Tab", "\t2 \r\n"},
                                         OtherForm{"TwoNumbers", " 2 4 \r\n"}, OtherForm{"Comma", " 2, \r\n"},
                                         OtherForm{"Blank", " \r\n"}, OtherForm{"Empty", "\r\n"},
                                         OtherForm{"Word", " two \r\n"}, OtherForm{"Boolean", "#TRUE#\r\n"}),
                         [](const auto& test) { return test.param.name; });

// Whatever the window of the file cuts off, the line is read from the next one.
TEST(PrintLines, ALineThatIsCutOffIsLeftWhole) {
  const std::string line = "-12.5 \r\n";
  for (std::size_t length = 0; length < line.size(); ++length) {
    const Taken taken = take(" 1 \r\n" + line.substr(0, length));
    EXPECT_EQ(taken.numbers, Numbers{1}) << length;
    EXPECT_EQ(taken.rest, line.substr(0, length));
  }
}

TEST(PrintLines, GiveBackTheBitsThatTheirTextStandsFor) {
  std::mt19937_64 random(1);
  std::string text;
  Numbers written;
  while (written.size() < 5000) {
    const double value = static_cast<double>(static_cast<std::int64_t>(random())) *
                         std::pow(10.0, static_cast<int>(random() % 600) - 300);
    if (!std::isfinite(value)) continue;
    const std::string line = printedNumber(value) + "\r\n";
    text += line;
    written.push_back(std::stod(line));
  }
  EXPECT_EQ(take(text, written.size()).numbers, written);
}

}  // namespace
}  // namespace tavimor
