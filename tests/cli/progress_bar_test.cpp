#include "cli/progress_bar.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <atomic>
#include <csignal>
#include <thread>

#include "cli.h"

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

// Lets a process work for a sixth of the time, so that what it does lasts on a fast machine too.
class Brake {
 public:
  explicit Brake(const test::Process& process) : thread_([this, &process] { stopAndGo(process); }) {}

  void release() {
    released_ = true;
    thread_.join();
  }

 private:
  void stopAndGo(const test::Process& process) const {
    while (!released_) {
      std::this_thread::sleep_for(20ms);
      process.send(SIGSTOP);
      std::this_thread::sleep_for(100ms);
      process.send(SIGCONT);
    }
  }

  std::atomic<bool> released_ = false;
  std::thread thread_;
};

// 700 x 700 values of a function that is no polynomial, degrees of 11.
class ProgressOfACommand : public test::CommandTest {
 protected:
  std::string large() {
    constexpr int kValues = 700;
    std::string values = " 1 \r\n";
    for (int v = 0; v < 2; ++v) values += " 699 \r\n#TRUE#\r\n";
    for (int v = 0; v < 2; ++v)
      for (int i = 0; i < kValues; ++i) values += ' ' + std::to_string(i) + " \r\n";
    for (int n = 0; n < kValues * kValues; ++n) values += ' ' + std::to_string(n * 7919LL % 1000) + " \r\n";
    return writePair("large",
                     test::fileText({" 1 ", R"("x",0,699,350,#TRUE#,0,11)", R"("y",0,699,350,#TRUE#,0,11)", "#FALSE#"}),
                     values);
  }

  // The largest share that a terminal shows of the command.
  static int largestShare(const std::vector<std::string>& command) {
    test::PseudoTerminal terminal;
    const test::Descriptor out(open("/dev/null", O_WRONLY | O_CLOEXEC));
    test::Process process(STDIN_FILENO, out.number(), terminal.terminal.number(),
                          [&] { return test::execute(TAVIMOR_CLI, command); });
    Brake brake(process);
    terminal.terminal.close();
    const std::string shown = test::readAll(terminal.master);
    brake.release();
    EXPECT_EQ(process.wait(), 0);
    EXPECT_THAT(shown, EndsWith("\r\x1B[K"));
    int largest = -1;
    for (std::size_t at = 0; (at = shown.find("] ", at)) != std::string::npos; ++at)
      largest = std::max(largest, std::stoi(shown.substr(at + 2)));
    return largest;
  }
};

TEST_F(ProgressOfACommand, DegreesTellsItUpToTheLastPass) {
  EXPECT_GE(largestShare({"degrees", large(), "--max", "11,11"}), 80);
}

}  // namespace
}  // namespace tavimor
