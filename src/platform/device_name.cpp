#include "platform/device_name.h"

#include <algorithm>
#include <array>
#include <string>

namespace tavimor {

namespace {

constexpr std::array<std::string_view, 6> kDevices = {"CON", "PRN", "AUX", "NUL", "CONIN$", "CONOUT$"};
constexpr std::array<std::string_view, 2> kNumberedDevices = {"COM", "LPT"};

std::string_view lastName(std::string_view path) {
  const bool hasDrive = path.size() > 1 && path[1] == ':';
  if (hasDrive) path.remove_prefix(2);
  return path.substr(path.find_last_of("/\\") + 1);
}

std::string upperCase(std::string_view text) {
  std::string upper(text);
  std::transform(upper.begin(), upper.end(), upper.begin(),
                 [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
  return upper;
}

bool isNumberedDevice(const std::string& name) {
  return name.size() == 4 && name[3] >= '1' && name[3] <= '9' &&
         std::find(kNumberedDevices.begin(), kNumberedDevices.end(), name.substr(0, 3)) != kNumberedDevices.end();
}

}  // namespace

bool isDeviceName(std::string_view path) {
  const std::string_view name = lastName(path);
  std::string device = upperCase(name.substr(0, name.find_first_of(".:")));
  device.erase(device.find_last_not_of(' ') + 1);
  return isNumberedDevice(device) || std::find(kDevices.begin(), kDevices.end(), device) != kDevices.end();
}

}  // namespace tavimor
