#include "formats/formulas/identifiers.h"

#include <algorithm>

#include "formats/formulas/ascii_text.h"

namespace tavimor {

namespace {

constexpr std::size_t kLongest = 50;  // Fortran takes 63 characters; room is left for an ending

bool isLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
bool isLetterOrDigit(char c) { return isLetter(c) || (c >= '0' && c <= '9'); }

std::string inSmallLetters(std::string text) {
  for (char& c : text)
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  return text;
}

// Underscores stand between letters and digits only, one at a time.
std::string legal(std::string_view wish, char first) {
  std::string name;
  for (const char c : asciiText(wish, '_')) {
    if (isLetterOrDigit(c))
      name += c;
    else if (!name.empty() && name.back() != '_')
      name += '_';
  }
  if (name.empty() || !isLetter(name.front())) name.insert(name.begin(), first);
  name.resize(std::min(name.size(), kLongest));
  if (name.back() == '_') name.pop_back();
  return name;
}

}  // namespace

Identifiers::Identifiers(std::string_view reserved, LetterCase letterCase) : letterCase_(letterCase) {
  while (!reserved.empty()) {
    const std::size_t length = std::min(reserved.find(' '), reserved.size());
    take(std::string(reserved.substr(0, length)));
    reserved.remove_prefix(std::min(length + 1, reserved.size()));
  }
}

std::string Identifiers::make(std::string_view wish, char first) {
  const std::string name = legal(wish, first);
  if (take(name)) return name;
  for (int number = 2;; ++number)
    if (const std::string numbered = name + "_" + std::to_string(number); take(numbered)) return numbered;
}

bool Identifiers::take(const std::string& name) {
  return taken_.insert(letterCase_ == LetterCase::Matters ? name : inSmallLetters(name)).second;
}

}  // namespace tavimor
