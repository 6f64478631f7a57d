#pragma once

#include <cstdlib>
#include <map>
#include <optional>
#include <string>

#include "platform/locale.h"

namespace tavimor::test {

inline constexpr char kGermany[] = "de_DE.UTF-8";  // writes 0,5

/// The user's decimal separator, as the program reads it.
inline std::string decimalSeparator() {
  std::string text(GetLocaleInfo(GetUserDefaultLCID(), LocaleItem::DecimalSeparator, {}), '\0');
  GetLocaleInfo(GetUserDefaultLCID(), LocaleItem::DecimalSeparator, text);
  text.pop_back();
  return text;
}

/// The locale as the environment gives it to a program; what it was before is back at the end.
class UserLocale {
 public:
  UserLocale() {
    for (const char* name : kNames) {
      const char* value = std::getenv(name);
      before_[name] = value == nullptr ? std::nullopt : std::optional<std::string>(value);
      unsetenv(name);
    }
  }
  UserLocale(const UserLocale&) = delete;
  UserLocale& operator=(const UserLocale&) = delete;
  ~UserLocale() {
    for (const auto& [name, value] : before_) write(name, value);
  }

  static void set(const std::string& name, const std::string& value) { write(name, value); }

  /// Empty for a variable that is not set.
  static std::string get(const std::string& name) {
    const char* value = std::getenv(name.c_str());
    return value == nullptr ? std::string() : value;
  }

  /// As "LANG=C LC_TIME=de_DE.UTF-8", in alphabetical order, without those that are not set.
  static std::string text() {
    std::string all;
    for (const char* name : kNames)
      if (const std::string value = get(name); !value.empty()) all += (all.empty() ? "" : " ") + (name + ("=" + value));
    return all;
  }

 private:
  static void write(const std::string& name, const std::optional<std::string>& value) {
    if (value) {
      setenv(name.c_str(), value->c_str(), 1);
    } else {
      unsetenv(name.c_str());
    }
  }

  static constexpr const char* kNames[] = {
      "LANG",        "LC_ADDRESS",  "LC_ALL",  "LC_COLLATE", "LC_CTYPE", "LC_IDENTIFICATION", "LC_MEASUREMENT",
      "LC_MESSAGES", "LC_MONETARY", "LC_NAME", "LC_NUMERIC", "LC_PAPER", "LC_TELEPHONE",      "LC_TIME"};

  std::map<std::string, std::optional<std::string>> before_;
};

}  // namespace tavimor::test
