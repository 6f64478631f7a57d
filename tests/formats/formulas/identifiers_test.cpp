#include "formats/formulas/identifiers.h"

#include <gtest/gtest.h>

namespace tavimor {
namespace {

struct Wish {
  const char* name;
  const char* wish;
  const char* identifier;
};

class WishedIdentifier : public testing::TestWithParam<Wish> {};

TEST_P(WishedIdentifier, IsMadeLegal) {
  Identifiers identifiers("do double");
  EXPECT_EQ(identifiers.make(GetParam().wish, 'x'), GetParam().identifier);
}

INSTANTIATE_TEST_SUITE_P(Identifiers, WishedIdentifier,
                         testing::Values(Wish{"AsItIs", "speed_2", "speed_2"}, Wish{"WithBlanks", "T in K", "T_in_K"},
                                         Wish{"WithGermanLetters", "Größe", "Groesse"},
                                         Wish{"WithGreekLetters", "Δλ", "Deltalambda"},
                                         Wish{"WithOtherCharacters", "T °C", "T_C"},
                                         Wish{"BeginningWithADigit", "5 disk", "x5_disk"},
                                         Wish{"BeginningWithAnUnderscore", "__x", "x"}, Wish{"Empty", "", "x"},
                                         Wish{"OfNoLetters", "€€", "x"}, Wish{"AReservedWord", "double", "double_2"},
                                         Wish{"AReservedWordInOtherCase", "Do", "Do"}),
                         [](const auto& wish) { return wish.param.name; });

TEST(IdentifiersOfOneText, AreNeverTheSame) {
  Identifiers identifiers("");
  EXPECT_EQ(identifiers.make("x", 'x'), "x");
  EXPECT_EQ(identifiers.make("x", 'x'), "x_2");
  EXPECT_EQ(identifiers.make("x_2", 'x'), "x_2_2");
  EXPECT_EQ(identifiers.make("X", 'x'), "X");
}

TEST(IdentifiersOfOneText, DifferByMoreThanCaseWhereThatDoesNotMatter) {
  Identifiers identifiers("do", LetterCase::DoesNotMatter);
  EXPECT_EQ(identifiers.make("T", 'x'), "T");
  EXPECT_EQ(identifiers.make("t", 'x'), "t_2");
  EXPECT_EQ(identifiers.make("Do", 'x'), "Do_2");
}

TEST(IdentifiersOfOneText, AreCutWhereTheyAreLong) {
  Identifiers identifiers("");
  EXPECT_EQ(identifiers.make(std::string(1000, 'a'), 'x'), std::string(50, 'a'));
  EXPECT_EQ(identifiers.make(std::string(1000, 'a'), 'x'), std::string(50, 'a') + "_2");
}

}  // namespace
}  // namespace tavimor
