#include "formats/work_names.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdint>

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

// The clock's last digits: no two saves of a target begin at one moment, and a file that is there is never taken.
std::string ownName(const std::string& target) {
  auto ticks = static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count());
  std::string digits;
  for (; digits.size() < kOwnDigits; ticks /= kDigits.size()) digits += kDigits[ticks % kDigits.size()];
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
