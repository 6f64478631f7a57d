#include "ui/start_up/toolkit_options.h"

#include <algorithm>
#include <string_view>

namespace tavimor {

namespace {

constexpr std::string_view kWithValue[] = {"display",       "fontengine",  "geometry",        "name",
                                           "platform",      "plugin",      "platformtheme",   "platformpluginpath",
                                           "qmljsdebugger", "qwindowicon", "qwindowgeometry", "qwindowtitle",
                                           "session",       "style",       "stylesheet",      "title"};
constexpr std::string_view kAlone[] = {"dograb", "nograb", "reverse", "sync", "widgetcount"};

template <std::size_t count>
bool isOneOf(const std::string_view (&names)[count], std::string_view name) {
  return std::find(std::begin(names), std::end(names), name) != std::end(names);
}

// What stands behind the dashes and before a "="; nothing for a word that is no option.
std::string_view optionName(std::string_view word) {
  if (!word.starts_with('-')) return {};
  word.remove_prefix(word.starts_with("--") ? 2 : 1);
  return word.substr(0, word.find('='));
}

}  // namespace

std::vector<std::string> withoutToolkitOptions(const std::vector<std::string>& words) {
  std::vector<std::string> own;
  for (std::size_t n = 0; n < words.size(); ++n) {
    const std::string_view name = optionName(words[n]);
    const bool hasValue = isOneOf(kWithValue, name);
    if (hasValue && words[n].find('=') == std::string::npos) ++n;
    if (!hasValue && !isOneOf(kAlone, name)) own.push_back(words[n]);
  }
  return own;
}

}  // namespace tavimor
