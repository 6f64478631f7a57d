#include "platform/terminal.h"

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>

#include <cerrno>
#endif

namespace tavimor {

#ifdef _WIN32

bool standardInputIsTerminal() { return _isatty(0) != 0; }
bool standardErrorIsTerminal() { return _isatty(2) != 0; }

long readStandardInput(char* target, std::size_t most) { return _read(0, target, static_cast<unsigned>(most)); }

#else

bool standardInputIsTerminal() { return isatty(STDIN_FILENO) != 0; }
bool standardErrorIsTerminal() { return isatty(STDERR_FILENO) != 0; }

long readStandardInput(char* target, std::size_t most) {
  while (true) {
    const ssize_t count = read(STDIN_FILENO, target, most);
    if (count >= 0 || errno != EINTR) return static_cast<long>(count);
  }
}

#endif

}  // namespace tavimor
