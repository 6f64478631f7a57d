// What is particular to files of Windows.
#include "platform/files.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <memory>
#include <thread>

#include "platform/file_lock.h"
#include "platform/file_query.h"
#include "platform/rename_over.h"
#include "support/files.h"
#include "support/temporary_folder.h"

namespace tavimor {
namespace {

namespace fs = std::filesystem;

using WindowsFiles = test::FolderTest;

TEST_F(WindowsFiles, ReadByOneProgramMayBeRenamedByAnother) {
  test::writeBytes(folder / "a", "text");
  const FileHandle reader = openForReading(folder / "a");
  ASSERT_TRUE(reader);
  EXPECT_TRUE(renameOver(folder / "a", folder / "b"));
  EXPECT_EQ(std::fgetc(reader.get()), 't');
  EXPECT_EQ(test::readBytes(folder / "b"), "text");
}

TEST_F(WindowsFiles, ThatAProgramHasOpenForMomentsAreWaitedFor) {
  test::writeBytes(folder / "new", "new");
  test::writeBytes(folder / "target", "old");
  std::thread search([program = std::make_shared<std::ifstream>(folder / "target")]() mutable {
    std::this_thread::sleep_for(std::chrono::milliseconds(200));
    program.reset();
  });
  EXPECT_TRUE(renameOver(folder / "new", folder / "target"));
  search.join();
  EXPECT_EQ(test::readBytes(folder / "target"), "new");
}

TEST_F(WindowsFiles, ThatAProgramKeepsOpenAreRefused) {
  test::writeBytes(folder / "new", "new");
  test::writeBytes(folder / "target", "old");
  const std::ifstream program(folder / "target");
  EXPECT_FALSE(renameOver(folder / "new", folder / "target"));
  EXPECT_TRUE(errno == EACCES || errno == EBUSY) << errno;
  EXPECT_EQ(test::readBytes(folder / "target"), "old");
  EXPECT_EQ(test::readBytes(folder / "new"), "new");
}

TEST_F(WindowsFiles, AreNeverMadeOverOthers) {
  test::writeBytes(folder / "a", "old");
  EXPECT_FALSE(createFile(folder / "a", Access::Usual));
  EXPECT_EQ(errno, EEXIST);
  EXPECT_EQ(test::readBytes(folder / "a"), "old");
}

TEST_F(WindowsFiles, HaveNamesInUtf8) {
  const std::string name = folder /
                           "Gr\xC3\xB6\xC3\x9F"
                           "e-\xCE\xB7-\xE6\xBC\xA2";
  std::fputs("text", createFile(name, Access::Usual).get());
  FileFacts facts;
  ASSERT_TRUE(queryFile(name, LastLink::Keep, facts));
  EXPECT_EQ(facts.kind, FileKind::Regular);
  EXPECT_EQ(facts.size, 4u);
  const fs::path found = fs::directory_iterator(folder.path())->path();
  EXPECT_EQ(found.filename().wstring(), L"Gr\u00f6\u00dfe-\u03b7-\u6f22");
  EXPECT_EQ(utf8Path(found), name);
}

TEST_F(WindowsFiles, AreKnownByTheirNumberWhateverTheirPath) {
  test::writeBytes(folder / "a", "text");
  fs::create_directory(folder / "b");
  FileFacts plain, roundabout, upperCase;
  ASSERT_TRUE(queryFile(folder / "a", LastLink::Keep, plain));
  ASSERT_TRUE(queryFile(folder / "b\\..\\a", LastLink::Keep, roundabout));
  ASSERT_TRUE(queryFile(folder / "A", LastLink::Keep, upperCase));
  EXPECT_TRUE(plain.isSameFileAs(roundabout));
  EXPECT_TRUE(plain.isSameFileAs(upperCase));
}

TEST_F(WindowsFiles, DevicesAreNone) {
  for (const char* name : {"nul", "con", "nul.dat", "COM1"}) {
    FileFacts facts;
    ASSERT_TRUE(queryFile(folder / name, LastLink::Keep, facts)) << name;
    EXPECT_EQ(facts.kind, FileKind::Other) << name;
  }
  FileFacts facts;
  const FileHandle device = openForReading("nul");
  ASSERT_TRUE(device && queryFile(device.get(), facts));
  EXPECT_EQ(facts.kind, FileKind::Other);
}

TEST_F(WindowsFiles, NamesThatNoFileCanHaveAreMissing) {
  for (const std::string& name : {std::string("a<b"), std::string("a?"), std::string(300, 'n')}) {
    FileFacts facts;
    ASSERT_TRUE(queryFile(folder / name, LastLink::Keep, facts)) << name << ' ' << errno;
    EXPECT_EQ(facts.kind, FileKind::Missing) << name;
    EXPECT_FALSE(createFile(folder / name, Access::Usual)) << name;
  }
}

TEST_F(WindowsFiles, ALockIsHeldByOneAndLeavesNothing) {
  {
    FileLock first(folder / "lock"), second(folder / "lock");
    EXPECT_EQ(first.tryAcquire(), FileLock::Attempt::Acquired);
    EXPECT_EQ(second.tryAcquire(), FileLock::Attempt::InTheWay);
    first.release();
    EXPECT_EQ(second.tryAcquire(), FileLock::Attempt::Acquired);
  }
  EXPECT_EQ(test::namesIn(folder.path()), std::vector<std::string>{});
}

}  // namespace
}  // namespace tavimor
