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
  taken.numbers.resize(most);
  const PrintLines lines = readPrintLines(text.data(), text.data(), last, taken.numbers);
  taken.numbers.resize(lines.count);
  taken.rest = std::string(lines.end, last);
  return taken;
}

TEST(PrintLines, AreTakenAsOutputFileWritesThem) {
  const Taken taken = take(" 1 \r\n-2.5 \r\n 1.5E-07 \r\n 0 \r\n");
  EXPECT_EQ(taken.numbers, (Numbers{1, -2.5, 1.5e-7, 0}));
  EXPECT_EQ(taken.rest, "");
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

std::string decimalLines(std::size_t count) {
  std::string text;
  for (std::size_t n = 0; n < count; ++n) text += n % 2 == 0 ? "-.123456789012345 \r\n" : " 1.5 \r\n";
  return text;
}

TEST_P(LineOfAnotherForm, IsLeftAmongDecimals) {
  for (const std::size_t before : {4, 5}) {  // as the second and as the first of two lines
    const std::string rest = GetParam().line + decimalLines(10);
    const Taken taken = take(decimalLines(before) + rest);
    EXPECT_EQ(taken.numbers.size(), before);
    EXPECT_EQ(taken.rest, rest);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Lines, LineOfAnotherForm,
    testing::Values(OtherForm{"NoBlankAtTheEnd", " 2\r\n"}, OtherForm{"LineFeedAlone", " 2 \n"},
                    OtherForm{"TwoBlanksInFront", "  2 \r\n"}, OtherForm{"Tab", "\t2 \r\n"},
                    OtherForm{"TwoNumbers", " 2 4 \r\n"}, OtherForm{"Comma", " 2, \r\n"}, OtherForm{"Blank", " \r\n"},
                    OtherForm{"Empty", "\r\n"}, OtherForm{"Word", " two \r\n"},
                    OtherForm{"LongFractionAndLineFeed", " .123456789012 \n"},
                    OtherForm{"LongFractionAndLetter", "-.12345678901x \r\n"},
                    OtherForm{"SixteenthLetter", " .123456789012345x \r\n"}, OtherForm{"TwoPoints", " 1.25.5 \r\n"},
                    OtherForm{"PointAlone", " . \r\n"}, OtherForm{"NoPointButTheOneBefore", " x5 \r\n"},
                    OtherForm{"SignInside", " 1-.5 \r\n"}, OtherForm{"TwoSigns", "--.5 \r\n"},
                    OtherForm{"ColonIsNoDigit", " 1.2:4 \r\n"}, OtherForm{"SlashIsNoDigit", " 1.2/4 \r\n"},
                    OtherForm{"HighByte", " 1.2\xB5 \r\n"}, OtherForm{"CarriageReturnAlone", " 2.5 \r .5 \r\n"},
                    OtherForm{"Boolean", "#TRUE#\r\n"}),
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

// The usual form, with its neighbours: up to two digits before the point and sixteen behind it.
TEST(PrintLines, GiveTheValuesOfNumeralsOfEveryLength) {
  std::string text;
  Numbers written;
  const std::string digits = "9876543210123456";
  for (const char* sign : {" ", "-"})
    for (const char* whole : {"", "7", "90", "123"})
      for (std::size_t count = 0; count <= digits.size(); ++count) {
        const std::string number = whole + ("." + digits.substr(0, count));
        if (number == ".") continue;
        text += sign + number + " \r\n";
        written.push_back(std::stod(sign + number));
      }
  const Taken taken = take(text + std::string(30, ' '), written.size());
  EXPECT_EQ(taken.numbers, written);
}

// A numeral of up to 17 digits, so that some are beyond the largest whole number that is exact.
std::string randomDecimal(std::mt19937_64& random) {
  std::string digits;
  for (std::size_t left = 1 + random() % 17; left > 0; --left) digits += static_cast<char>('0' + random() % 10);
  return (random() % 2 == 0 ? "-" : " ") + digits.insert(random() % (digits.size() + 1), ".");
}

TEST(PrintLines, GiveTheValuesOfDecimalsNextToEachOther) {
  std::mt19937_64 random(2);
  std::string text;
  Numbers expected;
  while (expected.size() < 20000) {
    const std::string decimal = randomDecimal(random);
    text += decimal + " \r\n";
    expected.push_back(std::stod(decimal));
  }
  EXPECT_EQ(take(text, expected.size()).numbers, expected);
}

TEST(PrintLines, TheLargestExactWholeNumberIsTheLimitOfNoOther) {
  const std::vector<std::string> decimals = {"-.9007199254740991", " 9007199254740.992", " .9007199254740993",
                                             " 900719925474099.3", "-.9007199300000000", " .9999999999999999"};
  std::string text = decimalLines(4);
  for (const std::string& decimal : decimals) text += decimal + " \r\n";
  const Numbers numbers = take(text + decimalLines(4)).numbers;
  for (std::size_t n = 0; n < decimals.size(); ++n) EXPECT_EQ(numbers.at(4 + n), std::stod(decimals[n])) << decimals[n];
}

TEST(PrintLines, WholeNumbersHaveNoPointOfAnEarlierLine) {
  const Taken taken = take(decimalLines(4) + " 12345678 \r\n-7 \r\n .5 \r\n-123456 \r\n .25 \r\n" + decimalLines(4), 9);
  EXPECT_EQ(Numbers(taken.numbers.begin() + 4, taken.numbers.end()), (Numbers{12345678, -7, 0.5, -123456, 0.25}));
}

TEST(PrintLines, KeepTheSignOfZero) {
  const Numbers numbers = take(decimalLines(4) + "-.0 \r\n .0 \r\n" + decimalLines(4)).numbers;
  EXPECT_TRUE(std::signbit(numbers.at(4)));
  EXPECT_FALSE(std::signbit(numbers.at(5)));
}

}  // namespace
}  // namespace tavimor
