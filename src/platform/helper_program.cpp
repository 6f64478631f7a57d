#include "platform/helper_program.h"

#include <filesystem>

#include "platform/files.h"

#ifdef _WIN32
#include <process.h>
#include <windows.h>

#include <array>
#else
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>
#ifdef __APPLE__
#include <mach-o/dyld.h>

#include <climits>
#include <cstdint>

extern "C" char** environ;  // which no header declares there
#endif
#endif

namespace tavimor {

namespace fs = std::filesystem;

namespace {

#ifdef _WIN32

fs::path ownPath() {
  std::array<wchar_t, 32768> path{};
  return {path.data(), path.data() + GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()))};
}

constexpr const char* kEnding = ".exe";

#else

fs::path ownPath() {
  std::error_code ignored;
#ifdef __APPLE__
  std::string path(PATH_MAX, '\0');
  auto size = static_cast<std::uint32_t>(path.size());
  if (_NSGetExecutablePath(path.data(), &size) != 0) return {};
  return fs::canonical(path.c_str(), ignored);
#else
  return fs::read_symlink("/proc/self/exe", ignored);
#endif
}

constexpr const char* kEnding = "";

#endif

}  // namespace

std::optional<std::string> helperProgram(const std::string& name) {
  const fs::path folder = ownPath().parent_path();
  for (const fs::path& place : {folder, folder.parent_path() / "libexec" / "tavimor"}) {
    std::error_code ignored;
    const fs::path program = place / nativePath(name + kEnding);
    if (fs::is_regular_file(program, ignored)) return utf8Path(program);
  }
  return std::nullopt;
}

#ifdef _WIN32

namespace {

// As the library of the program that is called cuts its command line: a backslash is doubled before a quotation mark
// alone, those at the end included.
std::wstring quoted(const std::string& word) {
  std::string text = "\"";
  std::size_t backslashes = 0;
  for (const char c : word) {
    if (c == '"') text.append(backslashes + 1, '\\');
    backslashes = c == '\\' ? backslashes + 1 : 0;
    text += c;
  }
  text.append(backslashes, '\\');
  return nativePath(text + '"').wstring();
}

}  // namespace

int runProgram(const std::string& program, const std::vector<std::string>& arguments) {
  std::vector<std::wstring> words = {quoted(program)};
  for (const std::string& argument : arguments) words.push_back(quoted(argument));
  std::vector<const wchar_t*> pointers;
  for (const std::wstring& word : words) pointers.push_back(word.c_str());
  pointers.push_back(nullptr);
  return static_cast<int>(_wspawnv(_P_WAIT, nativePath(program).c_str(), pointers.data()));
}

#else

int runProgram(const std::string& program, const std::vector<std::string>& arguments) {
  std::vector<char*> words = {const_cast<char*>(program.c_str())};
  for (const std::string& argument : arguments) words.push_back(const_cast<char*>(argument.c_str()));
  words.push_back(nullptr);
  pid_t child = 0;
  if (posix_spawn(&child, program.c_str(), nullptr, nullptr, words.data(), environ) != 0) return -1;
  int status = 0;
  if (waitpid(child, &status, 0) != child || !WIFEXITED(status)) return -1;
  return WEXITSTATUS(status);
}

#endif

}  // namespace tavimor
