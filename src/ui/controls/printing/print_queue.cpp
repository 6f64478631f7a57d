#include "ui/controls/printing/print_queue.h"

#include <QLibrary>

namespace tavimor {

// The toolkit's printing plug-in has loaded the library, so this asks the very instance that printed.
bool queueTookLastJob() {
#if defined(Q_OS_UNIX) && !defined(Q_OS_MACOS)
  constexpr int kVersion = 2;
  constexpr int kFirstFailure = 0x100;  // IPP status codes below it are successes (RFC 8011, appendix B)
  using LastError = int (*)();
  const auto lastError =
      reinterpret_cast<LastError>(QLibrary::resolve(QStringLiteral("cups"), kVersion, "cupsLastError"));
  return lastError == nullptr || lastError() < kFirstFailure;
#else
  return true;
#endif
}

}  // namespace tavimor
