#include "cli/progress_bar.h"

#include <gmock/gmock.h>

#include <thread>

#include "support/process.h"

namespace tavimor {
namespace {

using namespace std::chrono_literals;
using testing::EndsWith;
using testing::HasSubstr;

int workFor(std::chrono::milliseconds duration) {
  ProgressBar bar;
  bar.show(0.0);
  std::this_thread::sleep_for(duration);
  bar.show(0.25);
  return 0;
}

// What a terminal, or a pipe, gets on standard error from work that lasts so long.
std::string shownOnTerminal(std::chrono::milliseconds duration) {
  test::PseudoTerminal terminal;
  test::Process process(STDIN_FILENO, STDOUT_FILENO, terminal.terminal.number(), [&] { return workFor(duration); });
  terminal.terminal.close();
  std::string shown = test::readAll(terminal.master);
  EXPECT_EQ(process.wait(), 0);
  return shown;
}

std::string shownOnPipe(std::chrono::milliseconds duration) {
  test::Pipe pipe;
  test::Process process(STDIN_FILENO, STDOUT_FILENO, pipe.writing.number(), [&] { return workFor(duration); });
  pipe.writing.close();
  EXPECT_EQ(process.wait(), 0);
  return test::readAll(pipe.reading);
}

TEST(ProgressBar, ShowsTheShareOfLongWorkOnATerminal) {
  EXPECT_THAT(shownOnTerminal(600ms), HasSubstr("\r[##########                              ]  25 %"));
}

TEST(ProgressBar, LeavesTheLineClear) { EXPECT_THAT(shownOnTerminal(600ms), EndsWith("\r\x1B[K")); }

TEST(ProgressBar, ShortWorkShowsNothing) { EXPECT_EQ(shownOnTerminal(0ms), ""); }

TEST(ProgressBar, WithoutATerminalThereIsNone) { EXPECT_EQ(shownOnPipe(600ms), ""); }

}  // namespace
}  // namespace tavimor
