#include "runtime/decimal_cells.h"

#include <gtest/gtest.h>

#include <optional>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "platform/sse2.h"

namespace tavimor {
namespace {

using Numbers = std::vector<double>;

// Of a row with text before it and behind it.
std::optional<Numbers> numbersOf(const std::string& row, std::size_t columns, char separator = ',') {
  const std::string before = "1.25,-3.5,1.75,-42.5\n", text = before + row + std::string(64, '7');
  Numbers numbers(columns);
  const char* const last = text.data() + text.size();
  const char* behind = readDecimalCells(text.data(), text.data() + before.size(), last, separator, numbers);
  if (behind == nullptr) return std::nullopt;
  EXPECT_EQ(std::string(behind, last), std::string(64, '7'));
  return numbers;
}

struct OtherRow {
  const char* name;
  const char* text;
};

class RowOfAnotherForm : public testing::TestWithParam<OtherRow> {};

TEST_P(RowOfAnotherForm, IsNotTaken) { EXPECT_EQ(numbersOf(GetParam().text, 3), std::nullopt); }

INSTANTIATE_TEST_SUITE_P(
    Rows, RowOfAnotherForm,
    testing::Values(OtherRow{"Empty", "\n"}, OtherRow{"FewerCells", "1.5,2.5\n"},
                    OtherRow{"MoreCells", "1.5,2.5,3.5,4.5\n"}, OtherRow{"EmptyCell", "1.5,,2.5\n"},
                    OtherRow{"EmptyLastCell", "1.5,2.5,\n"}, OtherRow{"SignAlone", "1.5,-,2.5\n"},
                    OtherRow{"PointAlone", "1.5,.,2.5\n"}, OtherRow{"TwoPoints", "1.5,2.2.2,3.5\n"},
                    OtherRow{"Exponent", "1.5,2e5,3.5\n"}, OtherRow{"Word", "1.5,NAN,3.5\n"},
                    OtherRow{"Blank", "1.5, 2.5,3.5\n"}, OtherRow{"PlusSign", "1.5,+2.5,3.5\n"},
                    OtherRow{"TwoSigns", "1.5,--2.5,3.5\n"}, OtherRow{"Quoted", "1.5,\"2.5\",3.5\n"},
                    OtherRow{"OtherSeparator", "1.5;2.5;3.5\n"}, OtherRow{"CarriageReturnInside", "1.5\r,2.5,3.5\n"},
                    OtherRow{"TooManyDigits", "1.5,2.5,.12345678901234567\n"},
                    OtherRow{"TooLargeAWhole", "1.5,2.5,9.007199254740993\n"}),
    [](const auto& test) { return test.param.name; });

#ifdef TAVIMOR_HAS_SSE2

TEST(DecimalCells, AreTakenWithEveryEndOfALine) {
  const Numbers expected = {0.5, -12.25, 300};
  EXPECT_EQ(numbersOf("0.5,-12.25,300\n", 3), expected);
  EXPECT_EQ(numbersOf("0.5,-12.25,300\r\n", 3), expected);
  EXPECT_EQ(numbersOf(".5\t-12.25\t300\n", 3, '\t'), expected);
}

TEST(DecimalCells, OfOneColumnAreTaken) { EXPECT_EQ(numbersOf("-7\n", 1), Numbers{-7}); }

std::string randomDecimal(std::mt19937& random) {
  std::string digits;
  for (std::size_t left = 1 + random() % 15; left > 0; --left) digits += static_cast<char>('0' + random() % 10);
  const std::string sign = random() % 2 == 0 ? "-" : "";
  if (random() % 4 == 0) return sign + digits;
  return sign + digits.insert(random() % digits.size(), ".");
}

TEST(DecimalCells, HaveTheValuesOfTheirTexts) {
  std::mt19937 random(5);
  for (int n = 0; n < 20000; ++n) {
    const std::string one = randomDecimal(random), two = randomDecimal(random), three = randomDecimal(random);
    ASSERT_EQ(numbersOf(one + ',' + two + ',' + three + '\n', 3),
              (Numbers{std::stod(one), std::stod(two), std::stod(three)}));
  }
}

#endif

TEST(DecimalCells, WithoutEnoughTextAroundThemAreNotTaken) {
  const std::string row = "1.5,2.5,3.5\n", text = row + row + row + row + row + row + row;
  const char* const last = text.data() + text.size();
  Numbers numbers(3);
  for (const std::size_t first : {std::size_t{0}, row.size(), text.size() - row.size(), text.size() - 5 * row.size()})
    EXPECT_EQ(readDecimalCells(text.data(), text.data() + first, last, ',', numbers), nullptr) << first;
}

}  // namespace
}  // namespace tavimor
