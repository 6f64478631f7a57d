#include "platform/locale.h"

#ifdef _WIN32
#include <windows.h>
#undef GetLocaleInfo
#undef SetLocaleInfo
#else
#include <langinfo.h>
#include <locale.h>
#ifdef __APPLE__
#include <xlocale.h>
#endif

#include <algorithm>
#include <cstdlib>
#include <map>
#include <optional>
#endif

namespace tavimor {

#ifdef _WIN32

LocaleId GetUserDefaultLCID() { return ::GetUserDefaultLCID(); }

int GetLocaleInfo(LocaleId locale, LocaleItem item, std::span<char> buffer) {
  return ::GetLocaleInfoA(locale, static_cast<LCTYPE>(item), buffer.data(), static_cast<int>(buffer.size()));
}

bool SetLocaleInfo(LocaleId locale, LocaleItem item, const std::string& text) {
  return ::SetLocaleInfoA(locale, static_cast<LCTYPE>(item), text.c_str()) != 0;
}

#else

namespace {

constexpr char kPoint[] = ".";

// LC_ALL and what it overrides.
constexpr const char* kVariables[] = {"LC_ALL",       "LC_NUMERIC",        "LC_CTYPE",      "LC_COLLATE", "LC_MESSAGES",
                                      "LC_MONETARY",  "LC_TIME",           "LC_PAPER",      "LC_NAME",    "LC_ADDRESS",
                                      "LC_TELEPHONE", "LC_IDENTIFICATION", "LC_MEASUREMENT"};

using Environment = std::map<std::string, std::optional<std::string>>;

Environment readEnvironment() {
  Environment environment;
  for (const char* name : kVariables) {
    const char* value = std::getenv(name);
    environment[name] = value == nullptr ? std::nullopt : std::optional<std::string>(value);
  }
  return environment;
}

void writeEnvironment(const Environment& environment) {
  for (const auto& [name, value] : environment) {
    if (value) {
      setenv(name.c_str(), value->c_str(), 1);
    } else {
      unsetenv(name.c_str());
    }
  }
}

// LC_ALL stands above LC_NUMERIC; it goes, and its value goes to each of the others.
Environment withPoint(Environment environment) {
  if (const std::optional<std::string> all = environment["LC_ALL"]; all && !all->empty())
    for (auto& [name, value] : environment) value = all;
  environment["LC_ALL"] = std::nullopt;
  environment["LC_NUMERIC"] = "C";
  return environment;
}

// A locale that is not installed counts as the plain one, here as in the C library.
std::string separator() {
  locale_t user = newlocale(LC_NUMERIC_MASK, "", nullptr);
  if (user == nullptr) return kPoint;
  std::string text = nl_langinfo_l(RADIXCHAR, user);
  freelocale(user);
  return text;
}

struct Before {
  std::string separator;
  Environment environment;
};
std::optional<Before> before;

}  // namespace

LocaleId GetUserDefaultLCID() { return 0; }

int GetLocaleInfo(LocaleId /*locale*/, LocaleItem /*item*/, std::span<char> buffer) {
  const std::string text = separator();
  const std::size_t length = text.size() + 1;
  if (!buffer.empty()) {
    if (buffer.size() < length) return 0;
    std::copy_n(text.c_str(), length, buffer.begin());
  }
  return static_cast<int>(length);
}

bool SetLocaleInfo(LocaleId /*locale*/, LocaleItem /*item*/, const std::string& text) {
  if (text == separator()) return true;
  if (before && text == before->separator) {
    writeEnvironment(before->environment);
    before.reset();
    return true;
  }
  if (text != kPoint) return false;
  before = Before{separator(), readEnvironment()};
  writeEnvironment(withPoint(before->environment));
  return true;
}

#endif

}  // namespace tavimor
