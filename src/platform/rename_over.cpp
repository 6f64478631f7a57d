#include "platform/rename_over.h"

#ifdef _WIN32
#include <windows.h>

#include <cerrno>

#include "platform/files.h"
#include "platform/windows_error.h"
#else
#include <cstdio>
#endif

namespace tavimor {

#ifdef _WIN32

bool renameOver(const std::string& path, const std::string& target) {
  constexpr int kMostTries = 50;
  constexpr DWORD kPause = 20;  // milliseconds
  for (int tries = 1;; ++tries) {
    if (MoveFileExW(nativePath(path).c_str(), nativePath(target).c_str(),
                    MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
      return true;
    const DWORD reason = GetLastError();
    const bool mayPass = reason == ERROR_ACCESS_DENIED || reason == ERROR_SHARING_VIOLATION;
    if (!mayPass || tries == kMostTries) {
      errno = errnoOf(reason);
      return false;
    }
    Sleep(kPause);
  }
}

#else

bool renameOver(const std::string& path, const std::string& target) {
  return std::rename(path.c_str(), target.c_str()) == 0;
}

#endif

}  // namespace tavimor
