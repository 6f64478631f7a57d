#include "platform/program_words.h"

#ifdef _WIN32
#include <windows.h>

#include <fcntl.h>
#include <io.h>
#include <shellapi.h>

#include <cstdio>
#include <memory>

#include "platform/files.h"
#endif

namespace tavimor {

#ifdef _WIN32

// The words of main() have lost what the system's code page does not have.
std::vector<std::string> programWords(int argc, char** argv) {
  int count = 0;
  const std::unique_ptr<LPWSTR, decltype(&LocalFree)> words(CommandLineToArgvW(GetCommandLineW(), &count), LocalFree);
  if (!words) return {argv + 1, argv + argc};
  std::vector<std::string> texts;
  for (int n = 1; n < count; ++n) texts.push_back(utf8Path(words.get()[n]));
  return texts;
}

void carryBytesOnStandardStreams() {
  for (std::FILE* stream : {stdin, stdout, stderr})
    if (_fileno(stream) >= 0) _setmode(_fileno(stream), _O_BINARY);  // a program with windows may have none
  SetConsoleOutputCP(CP_UTF8);
}

#else

std::vector<std::string> programWords(int argc, char** argv) { return {argv + 1, argv + argc}; }

void carryBytesOnStandardStreams() {}

#endif

}  // namespace tavimor
