// The decimal separator as the user's setting in the registry.
#include "platform/locale.h"

#include <gtest/gtest.h>
#include <windows.h>
#undef GetLocaleInfo
#undef SetLocaleInfo

#include <array>

#include "platform/decimal_separator.h"

namespace tavimor {
namespace {

constexpr char kInternational[] = "Control Panel\\International";

std::string settingInRegistry() {
  std::array<char, 16> text{};
  DWORD size = text.size();
  EXPECT_EQ(RegGetValueA(HKEY_CURRENT_USER, kInternational, "sDecimal", RRF_RT_REG_SZ, nullptr, text.data(), &size),
            ERROR_SUCCESS);
  return text.data();
}

class DecimalSetting : public testing::Test {
 protected:
  DecimalSetting() { SetLocaleInfo(GetUserDefaultLCID(), LocaleItem::DecimalSeparator, ","); }
  ~DecimalSetting() override { SetLocaleInfo(GetUserDefaultLCID(), LocaleItem::DecimalSeparator, before_); }

 private:
  std::string before_ = settingInRegistry();
};

TEST_F(DecimalSetting, IsReadFromTheRegistry) {
  EXPECT_EQ(settingInRegistry(), ",");
  EXPECT_EQ(ReadDecimalSeparator(), ",");
}

TEST_F(DecimalSetting, IsAPointThereForARunAndThenWhatItWas) {
  ReadDecimalSeparator();
  SetDecimalPoint();
  EXPECT_EQ(settingInRegistry(), ".");
  RestoreDecimalSeparator();
  EXPECT_EQ(settingInRegistry(), ",");
}

}  // namespace
}  // namespace tavimor
