#pragma once

#include <regex>
#include <string>
#include <vector>

namespace tavimor::test {

/// What the pattern's first group finds in the text, again and again. "^" is the beginning of a line.
inline std::vector<std::string> allMatches(const std::string& text, const std::string& pattern) {
  const std::regex expression(pattern, std::regex::ECMAScript | std::regex::multiline);
  std::vector<std::string> found;
  for (std::sregex_iterator match(text.begin(), text.end(), expression), end; match != end; ++match)
    found.push_back((*match)[1]);
  return found;
}

}  // namespace tavimor::test
