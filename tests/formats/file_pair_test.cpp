#include "formats/file_pair.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <vector>

#include "formats/readable_pair.h"
#include "support/expect_error.h"
#include "support/files.h"
#include "support/temporary_folder.h"

namespace tavimor {
namespace {

namespace fs = std::filesystem;
using test::expectError;
using test::namesIn;
using test::readBytes;
using test::writeBytes;
using Names = std::vector<std::string>;

class FilePairTargets : public test::FolderTest {
 protected:
  void save(Long specification, Long values) { save(folder / "p", specification, values); }

  static void save(const std::string& path, Long specification, Long values) {
    FilePair pair(path);
    pair.specification().print(specification);
    pair.values().print(values);
    pair.commit();
  }

  void expectPair(const std::string& specification, const std::string& values) {
    const PairPaths pair = readablePair(folder / "p");
    EXPECT_EQ(readBytes(pair.specification), specification);
    EXPECT_EQ(readBytes(pair.values), values);
  }
};

TEST_F(FilePairTargets, AreThePathAndThePathWithDatAppended) {
  save(1, 2);
  EXPECT_EQ(namesIn(folder.path()), (Names{"p", "p.dat"}));
  EXPECT_EQ(readBytes(folder / "p"), " 1 \r\n");
  EXPECT_EQ(readBytes(folder / "p.dat"), " 2 \r\n");
}

TEST_F(FilePairTargets, AreReplaced) {
  save(1, 2);
  save(3, 4);
  EXPECT_EQ(namesIn(folder.path()), (Names{"p", "p.dat"}));
  expectPair(" 3 \r\n", " 4 \r\n");
}

TEST_F(FilePairTargets, StayAsTheyAreWithoutACommit) {
  save(1, 2);
  {
    FilePair pair(folder / "p");
    pair.specification().print(Long{3});
    expectPair(" 1 \r\n", " 2 \r\n");
  }
  expectPair(" 1 \r\n", " 2 \r\n");
  EXPECT_EQ(namesIn(folder.path()), (Names{"p", "p.dat"}));
}

TEST_F(FilePairTargets, ThatAreFoldersAreRefused) {
  fs::create_directory(folder / "p");
  expectError(ErrorNumber::PathFileAccess, [&] { save(1, 2); });
  fs::remove(folder / "p");
  fs::create_directory(folder / "p.dat");
  expectError(ErrorNumber::PathFileAccess, [&] { save(1, 2); });
  EXPECT_EQ(namesIn(folder.path()), (Names{"p.dat"}));
}

TEST_F(FilePairTargets, InAFolderThatIsMissingAreRefused) {
  expectError(ErrorNumber::PathNotFound, [&] { save(folder / "none/p", 1, 2); });
}

#ifndef _WIN32

TEST_F(FilePairTargets, ThatAreDevicesAreRefused) {
  expectError(ErrorNumber::PathFileAccess, [] { save("/dev/null", 1, 2); });
  fs::create_symlink("/dev/null", folder / "p.dat");
  expectError(ErrorNumber::PathFileAccess, [&] { save(1, 2); });
  EXPECT_EQ(namesIn(folder.path()), (Names{"p.dat"}));
  EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

TEST_F(FilePairTargets, ThatAreLinksLeadToTheFilesReplaced) {
  fs::create_directory(folder / "a");
  fs::create_directory(folder / "b");
  writeBytes(folder / "a/real", "old");
  fs::create_symlink("a/real", folder / "link");
  fs::create_symlink(folder / "link", folder / "p");
  fs::create_symlink("b/missing", folder / "p.dat");
  save(1, 2);
  EXPECT_EQ(readBytes(folder / "a/real"), " 1 \r\n");
  EXPECT_EQ(readBytes(folder / "b/missing"), " 2 \r\n");
  EXPECT_TRUE(fs::is_symlink(folder / "p") && fs::is_symlink(folder / "p.dat"));
  EXPECT_EQ(namesIn(folder / "a"), Names{"real"});
  EXPECT_EQ(namesIn(folder / "b"), Names{"missing"});
  expectPair(" 1 \r\n", " 2 \r\n");
}

TEST_F(FilePairTargets, ThatAreLinksInACircleAreRefused) {
  fs::create_symlink("q", folder / "p");
  fs::create_symlink("p", folder / "q");
  expectError(ErrorNumber::PathFileAccess, [&] { save(1, 2); });
  EXPECT_EQ(namesIn(folder.path()), (Names{"p", "q"}));
}

TEST_F(FilePairTargets, ThatAreOneFileAreRefused) {
  fs::create_symlink("p", folder / "p.dat");
  expectError(ErrorNumber::FileAlreadyOpen, [&] { save(1, 2); });
  EXPECT_EQ(namesIn(folder.path()), Names{"p.dat"});
}

TEST_F(FilePairTargets, KeepTheirPermissions) {
  save(1, 2);
  const fs::perms own = fs::perms::owner_read | fs::perms::owner_write;
  fs::permissions(folder / "p.dat", own);
  save(3, 4);
  EXPECT_EQ(fs::status(folder / "p.dat").permissions(), own);
}

#endif

struct Interrupted {
  const char* name;
  Names files;  // each holds its own name
  const char* specification;
  const char* values;
};

class InterruptedSave : public FilePairTargets, public testing::WithParamInterface<Interrupted> {};

TEST_P(InterruptedSave, LeavesOnePairToReadAndTheNextSaveTidiesUp) {
  for (const std::string& name : GetParam().files) writeBytes(folder / name, name);
  expectPair(GetParam().specification, GetParam().values);
  {
    FilePair unfinished(folder / "p");
    expectPair(GetParam().specification, GetParam().values);
  }
  expectPair(GetParam().specification, GetParam().values);
  EXPECT_EQ(namesIn(folder.path()), (Names{"p", "p.dat"}));
  save(1, 2);
  expectPair(" 1 \r\n", " 2 \r\n");
}

const Interrupted kInterrupted[] = {
    {"WhileWritingTheValues", {"p", "p.dat", "p.dat.tavimor-new"}, "p", "p.dat"},
    {"WhileWritingTheSpecification", {"p", "p.dat", "p.dat.tavimor-new", "p.tavimor-new"}, "p", "p.dat"},
    {"BeforeTheValuesMoved", {"p", "p.dat", "p.dat.tavimor-new", "p.tavimor-new", "p.dat.tavimor-old"}, "p", "p.dat"},
    {"BeforeTheSpecificationMoved", {"p", "p.dat", "p.tavimor-new", "p.dat.tavimor-old"}, "p.tavimor-new", "p.dat"},
    {"BeforeTheFirstSpecificationMoved", {"p.dat", "p.tavimor-new"}, "p.tavimor-new", "p.dat"},
    {"BeforeTheOldValuesWent", {"p", "p.dat", "p.dat.tavimor-old"}, "p", "p.dat"},
    {"OnTheWayBack", {"p", "p.dat", "p.tavimor-new", "p.dat.tavimor-back"}, "p", "p.dat.tavimor-back"},
    {"AtTheEndOfTheWayBack", {"p", "p.dat", "p.dat.tavimor-back"}, "p", "p.dat.tavimor-back"},
};

INSTANTIATE_TEST_SUITE_P(FilePair, InterruptedSave, testing::ValuesIn(kInterrupted),
                         [](const auto& state) { return std::string(state.param.name); });

}  // namespace
}  // namespace tavimor
