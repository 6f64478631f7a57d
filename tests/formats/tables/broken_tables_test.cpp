// Tables that are refused, each with the message that a user must get.
#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "table_import.h"

namespace tavimor::test {

namespace {

struct BrokenTable {
  const char* name;
  std::string text;
  ImportOptions options;
  std::vector<std::string> messages;
};

ImportOptions withColumns(const std::vector<std::string>& columns) {
  ImportOptions options;
  options.columns = columns;
  return options;
}

ImportOptions withDegrees(const std::vector<Long>& degrees) {
  ImportOptions options;
  options.degrees = degrees;
  return options;
}

ImportOptions withCentres(const std::vector<std::string>& centres) {
  ImportOptions options;
  options.centres = centres;
  return options;
}

ImportOptions shrinking() {
  ImportOptions options;
  options.gaps = Gaps::Shrink;
  return options;
}

const std::vector<BrokenTable>& brokenTables() {
  static const std::vector<BrokenTable> tables = {
#include "broken_tables.inc"
  };
  return tables;
}

class Broken : public testing::TestWithParam<BrokenTable> {};

}  // namespace

TEST_P(Broken, IsRefusedWithItsMessage) {
  const ImportOutcome outcome = importTable(GetParam().text, GetParam().options);
  EXPECT_THAT(refusals(outcome), testing::ElementsAreArray(GetParam().messages));
  EXPECT_FALSE(outcome.problem);
}

INSTANTIATE_TEST_SUITE_P(Tables, Broken, testing::ValuesIn(brokenTables()),
                         [](const auto& test) { return std::string(test.param.name); });

TEST(BrokenTables, FindingsKnowTheirLine) {
  const ImportOutcome outcome = importTable("x,f\n1,2\n2,abc\n3,4\n", {});
  const auto found = std::find_if(outcome.findings.begin(), outcome.findings.end(),
                                  [](const Finding& finding) { return finding.isRefusal(); });
  ASSERT_NE(found, outcome.findings.end());
  EXPECT_EQ(found->line, 3);
}

}  // namespace tavimor::test
