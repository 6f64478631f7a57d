#include "runtime/numeral.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <memory>
#include <random>
#include <string>

#include "runtime/number_text.h"
#include "runtime/val.h"

namespace tavimor {
namespace {

std::uint64_t bits(double value) { return std::bit_cast<std::uint64_t>(value); }

// Where the number is infinite there is no numeral. The text is given without anything behind it, so that a sanitizer
// sees a read past its end.
void expectRead(const std::string& text, double wanted) {
  const std::unique_ptr<char[]> exact(new char[text.size()]);
  std::memcpy(exact.get(), text.data(), text.size());
  const Numeral numeral = scanNumeral(exact.get(), exact.get() + text.size());
  ASSERT_EQ(bits(numeral.value), bits(std::isinf(wanted) ? 0.0 : wanted)) << text.substr(0, 60);
  ASSERT_EQ(numeral.end - exact.get(), std::isinf(wanted) ? 0 : std::ssize(text)) << text.substr(0, 60);
}

void expectAsStrtod(const std::string& text) { expectRead(text, std::strtod(text.c_str(), nullptr)); }

std::string randomDigits(std::mt19937& random, int count) {
  std::string digits;
  for (int n = 0; n < count; ++n) digits += static_cast<char>('0' + random() % 10);
  return digits;
}

TEST(Numeral, EveryNumberOfDigitsIsReadAsStrtodReadsIt) {
  std::mt19937 random(1);
  for (int count = 1; count <= 25; ++count)
    for (int point = -1; point <= count; ++point)
      for (int n = 0; n < 200; ++n) {
        std::string text = randomDigits(random, count);
        if (point >= 0) text.insert(static_cast<std::size_t>(point), ".");
        if (random() % 2 == 0) text.insert(0, random() % 2 == 0 ? "-" : "+");
        expectAsStrtod(text);
      }
}

TEST(Numeral, EveryExponentIsReadAsStrtodReadsIt) {
  std::mt19937 random(2);
  for (int exponent = -350; exponent <= 350; ++exponent)
    for (int count = 1; count <= 25; ++count) {
      std::string text = randomDigits(random, count);
      text.insert(random() % (text.size() + 1), ".");
      text += random() % 2 == 0 ? "E" : "e";
      if (exponent >= 0 && random() % 2 == 0) text += "+";
      expectAsStrtod(text + std::to_string(exponent));
    }
}

TEST(Numeral, LongNumeralsAreReadAsStrtodReadsThem) {
  std::mt19937 random(3);
  for (int count = 26; count <= 900; count += 23) {
    const std::string digits = randomDigits(random, count);
    expectAsStrtod(digits);
    expectAsStrtod("." + digits);
    expectAsStrtod(digits + "E-" + std::to_string(count));
    expectAsStrtod("0." + std::string(count, '0') + digits);
    expectAsStrtod(std::string(count, '0') + digits.substr(0, 12) + ".5");
  }
}

// One unit on either side of a half decides the last bit.
TEST(Numeral, HalvesAreRoundedToTheEvenNeighbour) {
  for (const char* text : {"9007199254740993", "9007199254740992.9999999999", "9007199254740993.0000000001",
                           "9007199254740991", "9007199254740992", "9007199254740994", "9007199254740995",
                           "1.00000000000000011102230246251565404236316680908203125",
                           "1.00000000000000011102230246251565404236316680908203124",
                           "1.00000000000000011102230246251565404236316680908203126"})
    expectAsStrtod(text);
}

TEST(Numeral, TheEdgesOfTheRangeAreReadAsStrtodReadsThem) {
  for (const char* text :
       {"1.7976931348623157E308", "1.7976931348623158E308", "1.797693134862315807E308", "2.2250738585072014E-308",
        "2.2250738585072011E-308", "4.9E-324", "2.5E-324", "2.4703282292062327E-324", "2.4703282292062328E-324",
        "1E-324", "-1E-324", "1E-4000", "0E4000", "0E-4000", "0.0E999999999999", "000", "-0", "-0.000E5"})
    expectAsStrtod(text);
  expectAsStrtod("1" + std::string(400, '0') + "E-400");
  expectAsStrtod("0." + std::string(400, '0') + "1");
  expectAsStrtod("0." + std::string(400, '0') + "1E400");
}

// The exponent makes up for many thousand digits in either direction.
TEST(Numeral, AnExponentMayOutweighAnyNumberOfDigits) {
  const std::string zeros(150000, '0');
  expectRead("0." + zeros + "1E150001", 1);
  expectRead("0." + zeros + "1E150500", std::numeric_limits<double>::infinity());
  expectRead("1" + zeros + "E-150000", 1);
  expectRead("1" + zeros + "E-150500", 0);
}

TEST(Numeral, TheTextOfTheLargestDoubleReadsBackAsIt) {
  constexpr double largest = std::numeric_limits<double>::max();
  EXPECT_EQ(numberText(largest), "1.79769313486232E+308");
  for (const std::string text : {"1.79769313486232E+308", "1.7976931348623159E308", "1.79769313486232000E308",
                                 "0.00179769313486232e311", "179769313486232E294", "000017976931348623.2E295"}) {
    const Numeral numeral = scanNumeral(text.data(), text.data() + text.size());
    EXPECT_EQ(bits(numeral.value), bits(largest)) << text;
    EXPECT_EQ(numeral.end, text.data() + text.size()) << text;
    EXPECT_EQ(Val("-" + text), -largest) << text;
  }
}

TEST(Numeral, ANumberThatIsTooLargeIsNone) {
  for (const std::string& text :
       {std::string("1E309"), std::string("-1E309"), std::string("1E400"), std::string("1.797693134862321E308"),
        std::string("1.79769313486233E+308"), std::string("1.8E308"), std::string("1E99999999999999999999"),
        "1" + std::string(400, '0'), "1" + std::string(400, '0') + ".5"}) {
    const Numeral numeral = scanNumeral(text.data(), text.data() + text.size());
    EXPECT_EQ(numeral.end, text.data()) << text.substr(0, 40);
    EXPECT_EQ(bits(numeral.value), bits(0.0)) << text.substr(0, 40);
  }
}

// Digits are taken eight at a time: what ends them may stand at any place of the eight.
TEST(Numeral, AnyCharacterEndsTheDigitsAtAnyPlaceOfAnEight) {
  for (int before = 1; before <= 24; ++before)
    for (int c = 0; c < 256; ++c) {
      if ((c >= '0' && c <= '9') || c == '.' || c == 'E' || c == 'e') continue;
      const std::string digits = std::string("123456789012345678901234").substr(0, before);
      const std::string text = digits + static_cast<char>(c) + "1234567";
      const Numeral numeral = scanNumeral(text.data(), text.data() + text.size());
      ASSERT_EQ(numeral.end - text.data(), before) << text;
      ASSERT_EQ(bits(numeral.value), bits(std::strtod(digits.c_str(), nullptr))) << text;
    }
}

TEST(Numeral, NothingIsReadWhereNoNumeralBegins) {
  for (const std::string text : {"", " 1", "abc", ".", "-", "+.", "E5", "inf", "nan", "INFO", "NAN5"}) {
    const Numeral numeral = scanNumeral(text.data(), text.data() + text.size());
    EXPECT_EQ(numeral.end, text.data()) << text;
    EXPECT_EQ(bits(numeral.value), bits(0.0)) << text;
  }
}

}  // namespace
}  // namespace tavimor
