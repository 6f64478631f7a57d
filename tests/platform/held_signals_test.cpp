#include "platform/held_signals.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <cerrno>
#include <csignal>

#include "platform/files.h"
#include "support/child_process.h"
#include "support/files.h"
#include "support/temporary_folder.h"

namespace tavimor {
namespace {

class HeldSignal : public test::FolderTest, public testing::WithParamInterface<int> {};

TEST_P(HeldSignal, KillsOnlyWhenTheHolderGoes) {
  const int ended = test::signalThatEnds([&] {
    const HeldSignals held;
    {
      const HeldSignals another;
      std::raise(GetParam());
    }
    if (HeldSignals::endIsRequested()) test::writeBytes(folder / "survivor", "tidied up");
  });
  EXPECT_EQ(ended, GetParam());
  EXPECT_EQ(test::readBytes(folder / "survivor"), "tidied up");
}

TEST_P(HeldSignal, KillsAtOnceWhenNobodyHoldsIt) {
  const int ended = test::signalThatEnds([&] {
    { const HeldSignals held; }
    std::raise(GetParam());
    test::writeBytes(folder / "survivor", "still here");
  });
  EXPECT_EQ(ended, GetParam());
  EXPECT_TRUE(test::namesIn(folder.path()).empty());
}

TEST_P(HeldSignal, StaysIgnoredWhereItWasIgnored) {
  EXPECT_EQ(test::exitCodeOfChild([&] {
              std::signal(GetParam(), SIG_IGN);
              const HeldSignals held;
              std::raise(GetParam());
              _exit(HeldSignals::endIsRequested() ? 1 : 0);
            }),
            0);
}

INSTANTIATE_TEST_SUITE_P(Signals, HeldSignal, testing::Values(SIGINT, SIGTERM, SIGHUP));

using FileSizeLimit = test::FolderTest;

TEST_F(FileSizeLimit, IsAnErrorOfWriting) {
  EXPECT_EQ(test::exitCodeOfChild([&] {
              reportFileSizeLimitAsError();
              const rlimit limit = {10, 10};
              setrlimit(RLIMIT_FSIZE, &limit);
              const FileHandle file = createFile(folder / "file", Access::Private);
              const std::string bytes(100, 'x');
              const bool isWritten = std::fwrite(bytes.data(), 1, bytes.size(), file.get()) == bytes.size();
              _exit(!isWritten && errno == EFBIG ? 0 : 1);
            }),
            0);
}

}  // namespace
}  // namespace tavimor
