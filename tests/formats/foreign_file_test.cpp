#include "formats/foreign_file.h"

#include <gtest/gtest.h>

#include "support/files.h"
#include "support/problem.h"
#include "support/stored.h"
#include "support/temporary_folder.h"

namespace tavimor {
namespace {

class Saving : public test::FolderTest {
 protected:
  Saving() : model(test::problem({{"x", {0, 1, 2}, 1, 0.5}})) { test::store(model, folder / "problem"); }

  // Saving to this name is refused because of this file, and no file of the folder changes.
  void expectRefused(const std::string& name, const std::string& because, const std::string& reason) {
    const std::vector<std::string> names = test::namesIn(folder.path());
    const std::string before = test::readBytes(folder / because);
    try {
      test::store(model, folder / name);
      ADD_FAILURE() << name << " was replaced";
    } catch (const ForeignFile& failure) {
      EXPECT_EQ(failure.path(), folder / because);
      EXPECT_EQ(failure.report(), "Not saved: the file is there already and is not the " + reason + " of a problem");
    }
    EXPECT_EQ(test::readBytes(folder / because), before);
    EXPECT_EQ(test::namesIn(folder.path()), names);
  }

  Dimension model;
};

TEST_F(Saving, ToTheValuesOfAProblemIsRefused) { expectRefused("problem.dat", "problem.dat", "specification"); }

TEST_F(Saving, WhereTheValuesWouldReplaceASpecificationIsRefused) {
  test::writeBytes(folder / "new.dat", test::readBytes(folder / "problem"));
  expectRefused("new", "new.dat", "values");
}

struct Content {
  const char* name;
  const char* bytes;
};

class SavingOver : public Saving, public testing::WithParamInterface<Content> {};

TEST_P(SavingOver, AFileOfAnotherKindIsRefused) {
  test::writeBytes(folder / "letter", GetParam().bytes);
  expectRefused("letter", "letter", "specification");
  test::writeBytes(folder / "new.dat", GetParam().bytes);
  expectRefused("new", "new.dat", "values");
}

INSTANTIATE_TEST_SUITE_P(Contents, SavingOver,
                         testing::Values(Content{"ALetter", "Dear Sir\n"}, Content{"Numbers", "1\n2\n3\n4\n"},
                                         Content{"OneLine", " 0 \r\n"}, Content{"ABlank", " "},
                                         Content{"TooManyVariables", " 4 \r\n\"x\",0,1,0,#TRUE#,0,1\r\n"},
                                         Content{"Table", "0,1,2\n#TRUE#,x,y\n"}),
                         [](const auto& test) { return std::string(test.param.name); });

TEST_F(Saving, OverTheSameHalvesReplacesThem) {
  test::writeBytes(folder / "problem", test::readBytes(folder / "problem") + "rest");
  model.UpperLimit[0] = 9;
  test::store(model, folder / "problem");
  EXPECT_EQ(test::stored(folder / "problem").UpperLimit[0], 9);
}

TEST_F(Saving, OverEmptyFilesReplacesThem) {
  test::writeBytes(folder / "new", "");
  test::writeBytes(folder / "new.dat", "");
  test::store(model, folder / "new");
  EXPECT_EQ(test::stored(folder / "new").X0, model.X0);
}

}  // namespace
}  // namespace tavimor
