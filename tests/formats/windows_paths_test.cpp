// Problems at the paths that only Windows has.
#include <gtest/gtest.h>

#include <filesystem>

#include "formats/open_problem.h"
#include "formats/replaced_file.h"
#include "platform/files.h"
#include "support/expect_error.h"
#include "support/pair_files.h"
#include "support/stored_problems.h"

namespace tavimor {
namespace {

namespace fs = std::filesystem;

using test::expectError;
using test::markedProblem;

class WindowsPaths : public test::FolderTest {
 protected:
  static void expectStoredAndRead(const std::string& path) {
    for (const double mark : {1, 2}) {
      test::store(markedProblem(mark), path);
      test::expectSameProblem(test::stored(path), markedProblem(mark));
    }
  }

  std::vector<std::wstring> names() const {
    std::vector<std::wstring> found;
    for (const auto& entry : fs::directory_iterator(folder.path())) found.push_back(entry.path().filename().wstring());
    std::sort(found.begin(), found.end());
    return found;
  }

  using Names = std::vector<std::wstring>;
};

TEST_F(WindowsPaths, HaveSlashesOfBothKinds) {
  fs::create_directory(folder / "a");
  std::string path = folder / "a\\p";
  expectStoredAndRead(path);
  std::replace(path.begin(), path.end(), '\\', '/');
  expectStoredAndRead(path);
}

TEST_F(WindowsPaths, HaveADriveAndMayBeRelativeToItsFolder) {
  const std::string drive = folder.path().substr(0, 2);
  ASSERT_EQ(drive[1], ':');
  const fs::path before = fs::current_path();
  fs::current_path(folder.path());
  expectStoredAndRead(drive + "p");
  EXPECT_EQ(names(), (Names{L"p", L"p.dat"}));
  fs::current_path(before);
}

TEST_F(WindowsPaths, HaveNamesInUtf8) {
  expectStoredAndRead(folder /
                      "Gr\xC3\xB6\xC3\x9F"
                      "e \xCE\xB7\xE6\xBC\xA2");
  EXPECT_EQ(names(), (Names{L"Gr\u00f6\u00dfe \u03b7\u6f22", L"Gr\u00f6\u00dfe \u03b7\u6f22.dat"}));
}

TEST_F(WindowsPaths, MayBeLong) {
  std::string path = folder.path();
  while (path.size() < 400) {
    path += '\\' + std::string(40, 'f');
    fs::create_directory(nativePath(path));
  }
  expectStoredAndRead(path + "\\p");
}

TEST_F(WindowsPaths, WithANameThatIsTooLongAreRefused) {
  EXPECT_THROW(test::store(markedProblem(1), folder / std::string(300, 'n')), RunTimeError);
  EXPECT_EQ(names(), Names{});
}

TEST_F(WindowsPaths, OfDevicesAreRefused) {
  for (const char* name : {"con", "NUL", "nul.txt", "com1", "Aux.tavimor"}) {
    expectError(ErrorNumber::PathFileAccess, [&] { test::store(markedProblem(1), folder / name); });
    expectError(ErrorNumber::PathFileAccess, [&] { replaceFile(folder / name, "text"); });
  }
  EXPECT_EQ(names(), Names{});
}

TEST_F(WindowsPaths, OfADriveThatIsMissingAreNotFound) {
  expectError(ErrorNumber::PathNotFound, [] { test::store(markedProblem(1), "Q:\\p"); });
  expectError(ErrorNumber::PathNotFound, [] { test::stored("Q:\\p"); });
}

TEST_F(WindowsPaths, InAnotherCaseAreTheSameFile) {
  test::store(markedProblem(1), folder / "prob");
  test::store(markedProblem(2), folder / "PROB");
  EXPECT_EQ(names().size(), 2u);
  test::expectSameProblem(test::stored(folder / "prob"), markedProblem(2));
}

// What another editor there has saved with LF alone, or with CR LF, is one problem.
TEST_F(WindowsPaths, FilesWithLfAndWithCrLfAreReadAlike) {
  test::store(markedProblem(3), folder / "p");
  for (const char* name : {"p", "p.dat"}) {
    std::string text = test::readBytes(folder / name);
    EXPECT_NE(text.find("\r\n"), std::string::npos);
    std::erase(text, '\r');
    test::writeBytes(folder / (std::string("lf") + (name + 1)), text);
  }
  test::expectSameProblem(test::stored(folder / "lf"), markedProblem(3));
}

}  // namespace
}  // namespace tavimor
