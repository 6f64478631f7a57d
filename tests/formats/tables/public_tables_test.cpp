// Public tables as they were published (examples/data states sources and licences): those that are full grids come in
// without an option and fit to their known coefficients, the others get the right diagnosis.
#include <gmock/gmock.h>

#include "formats/tables/table_text.h"
#include "support/known_fits.h"
#include "support/problem.h"
#include "table_import.h"

namespace tavimor::test {

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

ImportOutcome importPublic(const std::string& table, const ImportOptions& options = {}) {
  return importTable(TableText::ofFile(TAVIMOR_SOURCE_DIR "/examples/data/" + table + ".csv").view(), options);
}

struct PublicTable {
  const char* table;
  std::vector<Long> degrees;
  std::vector<std::string> centres;
  std::vector<std::string> columns;  // where the function is not the last column
  double digits;                     // of the worst coefficient, at least
};

void PrintTo(const PublicTable& table, std::ostream* stream) { *stream << table.table; }

const PublicTable kKnown[] = {
    {"nist_wampler1", {5}, {"*"}, {}, 13},
    {"nist_wampler2", {5}, {"*"}, {}, 12},
    {"nist_wampler3", {5}, {"*"}, {}, 13},
    {"nist_wampler4", {5}, {"*"}, {}, 13},
    {"nist_wampler5", {5}, {"*"}, {}, 13},
    {"nist_filip", {10}, {"*"}, {}, 7},
    {"mackenzie", {3, 1, 3}, {"0", "35", "0"}, {}, 7},
    {"heat_index", {2}, {"*"}, {"T", "R", "HI"}, 11},
};

class FullGrid : public testing::TestWithParam<PublicTable> {};

}  // namespace

TEST_P(FullGrid, FitsToItsKnownCoefficients) {
  ImportOptions options;
  options.degrees = GetParam().degrees;
  options.centres = GetParam().centres;
  options.columns = GetParam().columns;
  const ImportOutcome outcome = importPublic(GetParam().table, options);
  EXPECT_THAT(refusals(outcome), IsEmpty());
  ASSERT_TRUE(outcome.problem);
  Dimension model;
  static_cast<Problem&>(model) = *outcome.problem;
  compute(model);
  ASSERT_TRUE(model.FitDone);
  EXPECT_GE(worstDigits(model, knownAboutTheCentresOf(model, GetParam().table)), GetParam().digits);
}

INSTANTIATE_TEST_SUITE_P(PublicTables, FullGrid, testing::ValuesIn(kKnown),
                         [](const auto& test) { return std::string(test.param.table); });

// The last column of the heat index is the one of the published chart: the same in whole degrees.
TEST(PublicTables, TheHeatIndexWithoutAnOptionIsTheChart) {
  const ImportOutcome chart = importPublic("heat_index");
  ImportOptions options;
  options.columns = {"T", "R", "HI"};
  const ImportOutcome formula = importPublic("heat_index", options);
  ASSERT_TRUE(chart.problem && formula.problem);
  EXPECT_THAT(
      notes(chart, FindingKind::RolesTaken),
      ElementsAre("column 1 (\"T\") and column 2 (\"R\") are the variables, column 4 (\"HI_chart\") the function"));
  ASSERT_EQ(chart.problem->F.size(), formula.problem->F.size());
  for (std::size_t n = 0; n < chart.problem->F.size(); ++n)
    EXPECT_NEAR(chart.problem->F.data()[n], formula.problem->F.data()[n], 0.5) << n;
}

TEST(PublicTables, TheInksAreFourVariablesAmongTenColumns) {
  const ImportOutcome outcome = importPublic("fogra39_cmyk");
  ASSERT_TRUE(outcome.problem);
  EXPECT_THAT(outcome.problem->VarName, ElementsAre("C", "M", "Y", "K"));
  EXPECT_THAT(outcome.problem->LastPoint, ElementsAre(4, 4, 4, 3));
  EXPECT_EQ(notes(outcome, FindingKind::ColumnLeftOut).size(), 5U);
}

TEST(PublicTables, SiliconIsAGridOfUnequalSteps) {
  const ImportOutcome outcome = importPublic("si_index");
  ASSERT_TRUE(outcome.problem);
  EXPECT_THAT(outcome.problem->LastPoint, ElementsAre(34, 13, 0, 0));
  EXPECT_FALSE(outcome.problem->EquallySpaced[0]);
  EXPECT_FALSE(outcome.problem->EquallySpaced[1]);
}

TEST(PublicTables, TheOzoneMonitorWasReadTwiceAtOnePoint) {
  EXPECT_THAT(refusals(importPublic("nist_norris")),
              ElementsAre("1 point stands on more than one line: x=0.3 on lines 25 and 26 (0.3 / 0.6)"));
}

TEST(PublicTables, TheLoadCellWasLoadedTwiceEachTime) {
  const ImportOutcome outcome = importPublic("nist_pontius");
  ASSERT_EQ(refusals(outcome).size(), 1U);
  EXPECT_THAT(
      refusals(outcome)[0],
      testing::StartsWith("20 points stand on more than one line: x=150000 on lines 2 and 22 (0.11019 / 0.11052); "));
}

TEST(PublicTables, MeansOfTheLoadCellFitToItsCertifiedCoefficients) {
  ImportOptions options;
  options.duplicates = Duplicates::Mean;
  options.degrees = {2};
  const ImportOutcome outcome = importPublic("nist_pontius", options);
  ASSERT_TRUE(outcome.problem);
  Dimension model;
  static_cast<Problem&>(model) = *outcome.problem;
  compute(model);
  EXPECT_GE(worstDigits(model, knownAboutTheCentresOf(model, "nist_pontius")), 9)
      << "each load stands twice, so that the means have the same least squares";
}

}  // namespace tavimor::test
