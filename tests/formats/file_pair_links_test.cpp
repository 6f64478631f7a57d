// What others may have put where a save works: links, left-overs, names of ours.
#include <gtest/gtest.h>

#include <filesystem>

#include "formats/file_pair.h"
#include "formats/readable_pair.h"
#include "formats/work_names.h"
#include "support/expect_error.h"
#include "support/files.h"
#include "support/temporary_folder.h"

namespace tavimor {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

class FilePairSurroundings : public test::FolderTest {
 protected:
  FilePairSurroundings() {
    test::writeBytes(folder / "p", "old");
    test::writeBytes(folder / "p.dat", "old");
    test::writeBytes(folder / "precious", "mine");
  }

  void save() const { save(folder / "p"); }

  static void save(const std::string& path) {
    FilePair pair(path);
    pair.specification().print(Long{1});
    pair.values().print(Long{2});
    pair.commit();
  }

  // The new pair is there and nothing else, however it is read.
  void expectNewPairAlone() const {
    EXPECT_EQ(test::namesIn(folder.path()), (Names{"p", "p.dat", "precious"}));
    EXPECT_EQ(readablePair(folder / "p"), pairPaths(folder / "p"));
    EXPECT_EQ(test::readBytes(folder / "p") + test::readBytes(folder / "p.dat"), " 1 \r\n 2 \r\n");
    EXPECT_EQ(test::readBytes(folder / "precious"), "mine");
  }
};

constexpr const char* kEndings[] = {".tavimor-new", ".tavimor-old", ".tavimor-back", ".tavimor-lock",
                                    ".tavimor-0123abcd"};

// The names that a save uses, with the files that they stand beside.
std::vector<std::pair<const char*, std::string>> usedNames() {
  std::vector<std::pair<const char*, std::string>> names;
  for (const char* ending : {".tavimor-new", ".tavimor-lock", ".tavimor-0123abcd"})
    for (const char* target : {"p", "p.dat"}) names.emplace_back(target, std::string(target) + ending);
  for (const char* ending : {".tavimor-old", ".tavimor-back"})
    names.emplace_back("p.dat", std::string("p.dat") + ending);
  return names;
}

TEST_F(FilePairSurroundings, ASecondNameOfAFileOfThePairIsNotLeft) {
  for (const auto& [target, name] : usedNames()) {
    SCOPED_TRACE(name);
    fs::create_hard_link(folder / target, folder / name);
    save();
    expectNewPairAlone();
  }
}

#ifndef _WIN32  // links are made by the superuser alone there, and by Wine never

TEST_F(FilePairSurroundings, NoLinkIsWrittenThrough) {
  for (const auto& [target, name] : usedNames()) {
    SCOPED_TRACE(name);
    fs::create_symlink("precious", folder / name);
    save();
    expectNewPairAlone();
  }
}

#endif

TEST_F(FilePairSurroundings, WhatAKilledSaveWasWritingGoes) {
  test::writeBytes(folder / "p.tavimor-01234567", "half");
  test::writeBytes(folder / "p.dat.tavimor-89abcdef", "half");
  save();
  expectNewPairAlone();
}

TEST_F(FilePairSurroundings, WhatOnlyResemblesAWorkFileStays) {
  const Names mine = {"p.tavimor-", "p.tavimor-0123", "p.tavimor-0123456", "p.tavimor-notes", "pp.tavimor-01234567"};
  for (const std::string& name : mine) test::writeBytes(folder / name, "mine");
  save();
  for (const std::string& name : mine) EXPECT_EQ(test::readBytes(folder / name), "mine") << name;
}

TEST_F(FilePairSurroundings, AProblemIsNotCalledLikeAWorkFile) {
  for (const char* ending : kEndings)
    test::expectError(ErrorNumber::PathFileAccess, [&] { save(folder / (std::string("q") + ending)); });
  EXPECT_EQ(test::namesIn(folder.path()), (Names{"p", "p.dat", "precious"}));
}

TEST(WorkNames, AreKnownByTheirEndings) {
  for (const char* ending : kEndings) EXPECT_TRUE(isWorkName(std::string("folder/p") + ending)) << ending;
  for (const char* name : {"p", "p.tavimor", "p.tavimor-", "p.tavimor-notes", "p.tavimor-new.dat", "p.tavimor-new/q",
                           "p.tavimor-0123ABCD", "p.tavimor-012345678"})
    EXPECT_FALSE(isWorkName(name)) << name;
}

TEST(WorkNames, OfASaversOwnDifferAndAreKnown) {
  const std::string first = ownName("p"), second = ownName("p");
  EXPECT_NE(first, second);
  EXPECT_TRUE(isOwnName(first, "p") && isOwnName(second, "p"));
  EXPECT_FALSE(isOwnName(first, "q") || isOwnName("p.tavimor-new", "p"));
}

}  // namespace
}  // namespace tavimor
