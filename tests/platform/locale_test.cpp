#include "platform/locale.h"

#include <gtest/gtest.h>

#include <array>

#include "support/process.h"
#include "support/user_locale.h"

namespace tavimor {
namespace {

bool setSeparator(const std::string& text) {
  return SetLocaleInfo(GetUserDefaultLCID(), LocaleItem::DecimalSeparator, text);
}

class Locale : public testing::Test {
 protected:
  test::UserLocale locale;
};

TEST_F(Locale, TheSeparatorIsThatOfTheFirstVariableThatIsSet) {
  EXPECT_EQ(test::decimalSeparator(), ".");
  locale.set("LANG", test::kGermany);
  EXPECT_EQ(test::decimalSeparator(), ",");
  locale.set("LC_NUMERIC", "C");
  EXPECT_EQ(test::decimalSeparator(), ".");
  locale.set("LC_ALL", test::kGermany);
  EXPECT_EQ(test::decimalSeparator(), ",");
}

TEST_F(Locale, OneThatIsNotInstalledCountsAsThePlainOne) {
  locale.set("LC_ALL", "xx_XX.UTF-8");
  EXPECT_EQ(test::decimalSeparator(), ".");
}

TEST_F(Locale, AnEmptyBufferAsksForTheLengthWithItsNul) {
  locale.set("LC_ALL", test::kGermany);
  EXPECT_EQ(GetLocaleInfo(GetUserDefaultLCID(), LocaleItem::DecimalSeparator, {}), 2);
}

TEST_F(Locale, ABufferThatIsTooShortIsLeftAlone) {
  std::array<char, 1> tooShort{'x'};
  EXPECT_EQ(GetLocaleInfo(GetUserDefaultLCID(), LocaleItem::DecimalSeparator, tooShort), 0);
  EXPECT_EQ(tooShort[0], 'x');
}

TEST_F(Locale, ThePointHoldsForWhatTheProgramStartsToo) {
  locale.set("LC_ALL", test::kGermany);
  const auto decimalPointOfChild = [] { return test::runToEnd("/usr/bin/locale", {"decimal_point"}).out; };
  EXPECT_EQ(decimalPointOfChild(), ",\n");
  EXPECT_TRUE(setSeparator("."));
  EXPECT_EQ(test::decimalSeparator(), ".");
  EXPECT_EQ(decimalPointOfChild(), ".\n");
  EXPECT_TRUE(setSeparator(","));
  EXPECT_EQ(decimalPointOfChild(), ",\n");
}

TEST_F(Locale, ThePointLeavesTheOtherCategoriesAsTheyWere) {
  locale.set("LANG", "C");
  locale.set("LC_ALL", test::kGermany);
  locale.set("LC_TIME", "C");
  EXPECT_TRUE(setSeparator("."));
  EXPECT_EQ(locale.get("LC_ALL"), "");
  EXPECT_EQ(locale.get("LC_NUMERIC"), "C");
  for (const char* name : {"LC_TIME", "LC_CTYPE", "LC_MONETARY", "LC_PAPER"})
    EXPECT_EQ(locale.get(name), test::kGermany) << name;
  EXPECT_TRUE(setSeparator(","));
}

TEST_F(Locale, WithoutTheOneForAllOnlyTheNumbersChange) {
  locale.set("LANG", test::kGermany);
  EXPECT_TRUE(setSeparator("."));
  EXPECT_EQ(locale.text(), "LANG=de_DE.UTF-8 LC_NUMERIC=C");
  EXPECT_TRUE(setSeparator(","));
}

TEST_F(Locale, TheOldSeparatorBringsTheEnvironmentBack) {
  locale.set("LC_ALL", test::kGermany);
  locale.set("LC_NUMERIC", "C");
  const std::string before = locale.text();
  EXPECT_TRUE(setSeparator("."));
  EXPECT_NE(locale.text(), before);
  EXPECT_TRUE(setSeparator(","));
  EXPECT_EQ(locale.text(), before);
}

TEST_F(Locale, SettingWhatIsThereChangesNothing) {
  locale.set("LC_ALL", test::kGermany);
  EXPECT_TRUE(setSeparator(","));
  EXPECT_EQ(locale.text(), "LC_ALL=de_DE.UTF-8");
}

TEST_F(Locale, AnotherSeparatorIsRefused) {
  for (const char* other : {",", ";", ""}) EXPECT_FALSE(setSeparator(other)) << other;
  EXPECT_EQ(locale.text(), "");
}

}  // namespace
}  // namespace tavimor
