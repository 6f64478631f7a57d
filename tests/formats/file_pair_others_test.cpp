// Several programs at once: savers of one problem, and a reader beside a saver.
#include <gtest/gtest.h>

#include <csignal>
#include <thread>

#include "formats/file_pair.h"
#include "formats/readable_pair.h"
#include "runtime/input_file.h"
#include "support/child_process.h"
#include "support/expect_error.h"
#include "support/faulty_steps.h"
#include "support/files.h"
#include "support/temporary_folder.h"

#ifndef _WIN32

namespace tavimor {
namespace {

using Names = std::vector<std::string>;

class OtherPrograms : public test::FolderTest {
 protected:
  std::string path() const { return folder / "p"; }

  void save(Long mark) const {
    test::FaultySteps quick;
    FilePair pair(path(), quick);
    pair.specification().print(mark);
    pair.values().print(mark);
    pair.commit();
  }

  // The mark of both files, 0 where they differ.
  Long readMark() const {
    OpenPair pair = openPair(path());
    const Long mark = InputFile(std::move(pair.specification), "p").readLong("a mark");
    return InputFile(std::move(pair.values), "p.dat").readLong("a mark") == mark ? mark : 0;
  }

  void saveOften(Long firstMark, int times) const {
    for (int n = 0; n < times; ++n) save(firstMark + n);
  }
};

TEST_F(OtherPrograms, ThatSaveTheProblemAreWaitedForAndThenNamed) {
  FilePair first(path());
  try {
    FilePair second(path(), systemFileSteps(), Patience::clock::now());
    ADD_FAILURE() << "two savers at once";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.number(), ErrorNumber::FileAlreadyOpen);
    EXPECT_TRUE(error.report().starts_with("Run-time error '55': File already open (process ")) << error.report();
    EXPECT_TRUE(error.report().ends_with(" is saving it)")) << error.report();
  }
}

TEST_F(OtherPrograms, ThatSaveAProblemWithAFileInCommonAreWaitedForToo) {
  FilePair first(path());
  test::expectError(ErrorNumber::FileAlreadyOpen,
                    [&] { FilePair(folder / "p.dat", systemFileSteps(), Patience::clock::now()); });
}

TEST_F(OtherPrograms, TwoSaversLeaveOneWholePairEachTime) {
  for (int round = 0; round < 20; ++round) {
    std::thread other([&] { saveOften(100, 3); });
    saveOften(200, 3);
    other.join();
    const Long mark = readMark();
    EXPECT_TRUE(mark == 102 || mark == 202) << mark;
    EXPECT_EQ(test::namesIn(folder.path()), (Names{"p", "p.dat"}));
  }
}

TEST_F(OtherPrograms, AReaderBesideASaverReadsWholePairs) {
  save(1);
  std::atomic<bool> isDone = false;
  std::thread saver([&] {
    for (Long mark = 2; !isDone; ++mark) save(mark);
  });
  Long last = 1;
  for (int n = 0; n < 2000; ++n) {
    const Long mark = readMark();
    EXPECT_GE(mark, last);
    last = mark;
  }
  isDone = true;
  saver.join();
  EXPECT_GT(last, 1) << "no save came between";
}

class RequestToEnd : public OtherPrograms, public testing::WithParamInterface<int> {};

TEST_P(RequestToEnd, DuringASaveLeavesTheOldPairAndNoWorkFile) {
  save(1);
  EXPECT_EQ(test::signalThatEnds([&] {
              FilePair pair(path());
              std::raise(GetParam());
              pair.values().print(Long{2});
              pair.specification().print(Long{2});
              pair.commit();
            }),
            GetParam());
  EXPECT_EQ(readMark(), 1);
  EXPECT_EQ(test::namesIn(folder.path()), (Names{"p", "p.dat"}));
}

INSTANTIATE_TEST_SUITE_P(Signals, RequestToEnd, testing::Values(SIGINT, SIGTERM, SIGHUP));

}  // namespace
}  // namespace tavimor

#endif
