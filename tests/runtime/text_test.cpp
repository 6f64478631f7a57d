#include "runtime/text.h"

#include <gtest/gtest.h>

namespace tavimor {
namespace {

TEST(Text, WellFormedUtf8StaysAsItIs) {
  for (const char* text :
       {"", "x", "Temperatur °C", "\u00FC", "\u20AC", "\uD7FF", "\uE000", "\U00010000", "\U0010FFFF"})
    EXPECT_EQ(utf8FromBytes(text), text);
}

TEST(Text, AByteThatIsNoUtf8IsTakenAsLatin1) {
  EXPECT_EQ(utf8FromBytes("Gr\xF6\xDF"
                          "e"),
            "Größe");
  EXPECT_EQ(utf8FromBytes("\xE9"), "é");
  EXPECT_EQ(utf8FromBytes("\xB0"
                          "C"),
            "°C");
  EXPECT_EQ(utf8FromBytes("ü\xFC"), "üü");
}

TEST(Text, EachByteOfAnIllFormedCharacterCountsForItself) {
  EXPECT_EQ(characterCount(utf8FromBytes("\xC0\xAF")), 2u);          // an overlong form
  EXPECT_EQ(characterCount(utf8FromBytes("\xE0\x9F\xBF")), 3u);      // an overlong form
  EXPECT_EQ(characterCount(utf8FromBytes("\xED\xA0\x80")), 3u);      // a surrogate
  EXPECT_EQ(characterCount(utf8FromBytes("\xF0\x8F\xBF\xBF")), 4u);  // an overlong form
  EXPECT_EQ(characterCount(utf8FromBytes("\xF4\x90\x80\x80")), 4u);  // past the last character
  EXPECT_EQ(characterCount(utf8FromBytes("\xF5\x80\x80\x80")), 4u);
  EXPECT_EQ(characterCount(utf8FromBytes("\xE2\x82")), 2u);  // cut off
  EXPECT_EQ(characterCount(utf8FromBytes("\x80")), 1u);
}

TEST(Text, WhatWouldDisturbAMessageIsAnEscape) {
  EXPECT_EQ(withEscapes("a\nb\r\tc\x1B[2Jd\x7F"), "a\\nb\\r\\tc\\x1B[2Jd\\x7F");
  EXPECT_EQ(withEscapes("\u009B"), "\\xC2\\x9B");
  EXPECT_EQ(withEscapes("\u2028"), "\\xE2\\x80\\xA8");
  EXPECT_EQ(withEscapes("\x9B\xFF"), "\\x9B\\xFF");
  for (const char* text : {"", "x", "C:\\Größe in µm", "\u00A0", "\u2027", "\U0001F600"})
    EXPECT_EQ(withEscapes(text), text);
}

TEST(Text, WhatWasMadeUtf8StaysAsItIs) {
  std::string everyByte;
  for (int c = 0; c < 256; ++c) everyByte += static_cast<char>(c);
  const std::string utf8 = utf8FromBytes(everyByte);
  EXPECT_EQ(characterCount(utf8), 256u);
  EXPECT_EQ(utf8FromBytes(utf8), utf8);
}

TEST(Text, ACharacterIsAColumn) {
  EXPECT_EQ(characterCount(""), 0u);
  EXPECT_EQ(characterCount("abc"), 3u);
  EXPECT_EQ(characterCount("ü€\U0001F600"), 3u);
}

TEST(Text, TheFirstCharactersAreCutBetweenCharacters) {
  EXPECT_EQ(firstCharacters("ü€x", 0), "");
  EXPECT_EQ(firstCharacters("ü€x", 2), "ü€");
  EXPECT_EQ(firstCharacters("ü€x", 9), "ü€x");
}

TEST(Text, AnOverlaidTextReplacesColumns) {
  EXPECT_EQ(overlaid("..........", 1, "abc"), "abc.......");
  EXPECT_EQ(overlaid("..........", 4, "abc"), "...abc....");
  EXPECT_EQ(overlaid("..........", 8, "abc"), ".......abc");
  EXPECT_EQ(overlaid("..........", 4, ""), "..........");
}

TEST(Text, WhatWouldStandBeyondTheEndIsDropped) {
  EXPECT_EQ(overlaid("....", 3, "abc"), "..ab");
  EXPECT_EQ(overlaid("....", 5, "abc"), "....");
  EXPECT_EQ(overlaid("....", 9, "abc"), "....");
  EXPECT_EQ(overlaid("", 1, "abc"), "");
}

TEST(Text, ColumnsCountCharactersNotBytes) {
  EXPECT_EQ(overlaid("äöü...", 2, "€"), "ä€ü...");
  EXPECT_EQ(overlaid("......", 2, "äöü"), ".äöü..");
  EXPECT_EQ(overlaid("...", 2, "äöü"), ".äö");
}

TEST(Text, AnExcerptFitsOneLineOfAMessage) {
  EXPECT_EQ(excerpt(" a\tb\r\nc\x7F "), "a?b??c?");
  EXPECT_EQ(excerpt("\xFC\xC3\xBC"), "üü");
  EXPECT_EQ(excerpt("  üü", 1), "ü");
  EXPECT_EQ(excerpt(std::string(100, 'x')), std::string(40, 'x'));
  EXPECT_EQ(excerpt(" \t"), "");
}

TEST(Text, BlanksAndTabsAtBothEndsAreTrimmed) {
  EXPECT_EQ(trimmed(" \t a b\t "), "a b");
  EXPECT_EQ(trimmed("ab"), "ab");
  EXPECT_EQ(trimmed(" \t"), "");
  EXPECT_EQ(trimmed(""), "");
}

}  // namespace
}  // namespace tavimor
