#include "platform/terminal.h"

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace tavimor {

bool standardErrorIsTerminal() {
#ifdef _WIN32
  return _isatty(2) != 0;
#else
  return isatty(2) != 0;
#endif
}

}  // namespace tavimor
