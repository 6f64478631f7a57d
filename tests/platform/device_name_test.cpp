#include "platform/device_name.h"

#include <gtest/gtest.h>

namespace tavimor {
namespace {

TEST(DeviceName, IsKeptInAnyCaseWithAnyEndingInAnyFolder) {
  for (const char* path : {"con", "NUL", "nul.dat", "Aux.tavimor-new", "lpt1", "COM9.txt", "C:\\data\\prn",
                           "C:/data/con", "C:con", "nul:", "con .dat", "conin$", "CONOUT$", "..\\nul.tar.gz"})
    EXPECT_TRUE(isDeviceName(path)) << path;
}

TEST(DeviceName, IsNoOtherName) {
  for (const char* path : {"", "console", "con-1", "com0", "com10", "lpt", "nu l", "con\\prob", "nul.dat/prob", "a.con",
                           ".nul", "C:", "C:\\", "\xC3\xA7on"})
    EXPECT_FALSE(isDeviceName(path)) << path;
}

}  // namespace
}  // namespace tavimor
