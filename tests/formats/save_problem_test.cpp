
#include <gtest/gtest.h>

#include "runtime/run_time_error.h"
#include "support/example.h"
#include "support/files.h"
#include "support/temporary_folder.h"

namespace tavimor {
namespace {

using test::Example;
using test::examplePath;
using test::readBytes;

class SavedExample : public testing::TestWithParam<const char*> {};

TEST_P(SavedExample, HasTheBytesOfTheFilesThatWereOpened) {
  const test::TemporaryFolder folder;
  Example example(GetParam());
  test::save(example.model, example.fields, folder / "copy");
  EXPECT_EQ(readBytes(folder / "copy"), readBytes(examplePath(GetParam())));
  EXPECT_EQ(readBytes(folder / "copy.dat"), readBytes(examplePath(GetParam()) + ".dat"));
}

INSTANTIATE_TEST_SUITE_P(All, SavedExample,
                         testing::Values("ozone", "load-cell", "heat-index", "silicon-index", "sound-speed",
                                         "offset-print", "nist/filip", "nist/wampler1", "nist/wampler2",
                                         "nist/wampler3", "nist/wampler4", "nist/wampler5"));

using SaveProblemTest = test::FolderTest;

TEST_F(SaveProblemTest, AFitSurvivesSaveAndOpen) {
  Example example("heat-index");
  example.fit();
  test::save(example.model, example.fields, folder / "fitted");
  const Dimension opened = test::stored(folder / "fitted");
  EXPECT_TRUE(opened.FitDone);
  EXPECT_EQ(opened.NumGridPoints, 16 * 13);
  EXPECT_NEAR(opened.CorrCoef, example.model.CorrCoef, 1e-14);
  for (std::size_t n = 0; n < opened.Coef.size(); ++n)
    EXPECT_NEAR(opened.Coef.data()[n] / example.model.Coef.data()[n], 1.0, 1e-14);
}

TEST_F(SaveProblemTest, WritesWhatTheFieldsSay) {
  Example example("ozone");
  example.fields[0].txtLL = "-1.5";
  example.fields[0].txtExpansion = "*";
  example.fields[0].txtTerms = "3";
  example.fields[0].chkSpaced = true;
  test::save(example.model, example.fields, folder / "changed");
  EXPECT_EQ(readBytes(folder / "changed"), " 0 \r\n\"reading\",-1.5,999,498.75,#TRUE#,0,3\r\n#FALSE#\r\n");
  EXPECT_TRUE(readBytes(folder / "changed.dat").starts_with(" 0 \r\n 35 \r\n#TRUE#\r\n-1.5 \r\n"));
}

TEST_F(SaveProblemTest, TheSavedRecordSaysPowersWhateverTheFileSaid) {
  test::writeBytes(folder / "waves", " 0 \r\n\"t\",0,1,0,#FALSE#,6.25,1\r\n#FALSE#\r\n");
  test::writeBytes(folder / "waves.dat", " 0 \r\n 1 \r\n#FALSE#\r\n 0 \r\n 1 \r\n 2 \r\n 3 \r\n");
  OpenedProblem waves = openProblem(folder / "waves");
  Dimension model = test::modelOf(waves.problem, waves.fit);
  test::save(model, waves.fields, folder / "saved");
  EXPECT_EQ(readBytes(folder / "saved"), " 0 \r\n\"t\",0,1,0,#TRUE#,6.25,1\r\n#FALSE#\r\n");
}

TEST_F(SaveProblemTest, FieldsThatCannotBeCapturedLeaveNoFile) {
  Example example("ozone");
  example.fields[0].txtPoints = "1";
  EXPECT_THROW(test::save(example.model, example.fields, folder / "never"), RunTimeError);
  EXPECT_TRUE(test::namesIn(folder.path()).empty());
}

}  // namespace
}  // namespace tavimor
