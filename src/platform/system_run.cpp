#include "platform/system_run.h"

#include <fstream>

namespace tavimor {

std::string systemRun() {
  std::string name;
  std::getline(std::ifstream("/proc/sys/kernel/random/boot_id"), name);
  return name;
}

}  // namespace tavimor
