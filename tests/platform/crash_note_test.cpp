#include "platform/crash_note.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <csignal>
#include <cstdlib>
#include <limits>

#include "support/child_process.h"
#include "support/files.h"
#include "support/temporary_folder.h"

namespace tavimor {
namespace {

class CrashNote : public test::FolderTest, public testing::WithParamInterface<int> {
 protected:
  // The signal that ends a program that watches itself and leaves its note in this file.
  static int signalThatEnds(const std::string& path, const std::function<void()>& crash) {
    return test::signalThatEnds([&] {
      const rlimit noCore{0, 0};
      setrlimit(RLIMIT_CORE, &noCore);
      for (const int signal : {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT}) std::signal(signal, SIG_DFL);
      watchCrashes();
      setCrashNote(path);
      crash();
    });
  }

  std::string note() const { return folder / "note"; }
};

TEST_P(CrashNote, IsLeftAndTheSignalTakesItsCourse) {
  EXPECT_EQ(signalThatEnds(note(), [] { std::raise(GetParam()); }), GetParam());
  EXPECT_EQ(test::readBytes(note()), kCrashNote);
}

INSTANTIATE_TEST_SUITE_P(Signals, CrashNote, testing::Values(SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT));

// Deeper than any stack.
int depthOf(volatile int* below) {
  volatile int here = *below + 1;
  return here == std::numeric_limits<int>::max() ? here : depthOf(&here) + here;
}

TEST_F(CrashNote, IsLeftByAnOverflowOfTheStack) {
  EXPECT_EQ(signalThatEnds(note(),
                           [] {
                             volatile int bottom = 0;
                             std::exit(depthOf(&bottom));
                           }),
            SIGSEGV);
  EXPECT_EQ(test::readBytes(note()), kCrashNote);
}

TEST_F(CrashNote, WhatIsNotedAlreadyStays) {
  test::writeBytes(note(), "closed\n");
  EXPECT_EQ(signalThatEnds(note(), std::abort), SIGABRT);
  EXPECT_EQ(test::readBytes(note()), "closed\n");
}

TEST_F(CrashNote, AKillLeavesNone) {
  EXPECT_EQ(signalThatEnds(note(), [] { std::raise(SIGKILL); }), SIGKILL);
  EXPECT_FALSE(std::filesystem::exists(note()));
}

TEST_F(CrashNote, IsNotLeftWhereItIsTakenBack) {
  EXPECT_EQ(signalThatEnds(note(),
                           [] {
                             setCrashNote("");
                             std::abort();
                           }),
            SIGABRT);
  EXPECT_FALSE(std::filesystem::exists(note()));
}

}  // namespace
}  // namespace tavimor
