#include "formats/work_names.h"

#include <algorithm>
#include <array>
#include <random>

namespace tavimor {

namespace {

constexpr std::string_view kMark = ".tavimor-";
constexpr std::string_view kDigits = "0123456789abcdef";
constexpr std::size_t kOwnDigits = 8;
constexpr std::array<std::string_view, 4> kKinds = {"new", "old", "back", "lock"};

std::string marked(std::string_view target, std::string_view kind) {
  std::string name(target);
  name += kMark;
  name += kind;
  return name;
}

bool isOwnDigits(std::string_view text) {
  return text.size() == kOwnDigits && text.find_first_not_of(kDigits) == std::string_view::npos;
}

}  // namespace

std::string newName(const std::string& target) { return marked(target, "new"); }
std::string oldName(const std::string& target) { return marked(target, "old"); }
std::string backName(const std::string& target) { return marked(target, "back"); }

std::string ownName(const std::string& target) {
  std::random_device random;
  std::uniform_int_distribution<std::size_t> digit(0, kDigits.size() - 1);
  std::string digits;
  while (digits.size() < kOwnDigits) digits += kDigits[digit(random)];
  return marked(target, digits);
}

bool isOwnName(std::string_view name, std::string_view target) {
  if (!name.starts_with(target)) return false;
  const std::string_view rest = name.substr(target.size());
  return rest.starts_with(kMark) && isOwnDigits(rest.substr(kMark.size()));
}

bool isWorkName(std::string_view path) {
  const std::size_t mark = path.rfind(kMark);
  if (mark == std::string_view::npos) return false;
  const std::string_view kind = path.substr(mark + kMark.size());
  return isOwnDigits(kind) || std::find(kKinds.begin(), kKinds.end(), kind) != kKinds.end();
}

}  // namespace tavimor
