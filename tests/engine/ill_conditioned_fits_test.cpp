#include "support/ill_conditioned_fits.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

#include "support/example.h"
#include "support/files.h"

namespace tavimor {
namespace {

using testing::HasSubstr;

// A document as one line, so that it does not matter where its lines break.
std::string document(const std::string& path, const std::string& lineBreak) {
  std::string joined;
  for (const char c : test::readBytes(TAVIMOR_SOURCE_DIR "/" + path))
    if (c == '\n')
      joined += lineBreak;
    else if (c != '\r')
      joined += c;
  return joined;
}

class IllConditionedFits : public testing::Test {
 protected:
  void SetUp() override {
    if (std::numeric_limits<long double>::digits < 64) GTEST_SKIP() << "long double is no longer than double here";
  }
};

TEST_F(IllConditionedFits, HaveTheErrorsThatTheManualStates) {
  const std::string manual = document("help/tavimor.hlp", "");
  for (const std::string& row : test::rowsOfIllConditionedFits()) EXPECT_THAT(manual, HasSubstr(row));
}

TEST_F(IllConditionedFits, FilipReadsAsTheManualStates) {
  const std::string manual = document("help/tavimor.hlp", " ");
  test::Example example("nist/filip");
  example.fit({"*"});
  EXPECT_THAT(manual, HasSubstr("residuals is " + numberText(example.model.SumRes2) + ","));
  example.fit({"0"});
  EXPECT_THAT(manual, HasSubstr("it is " + numberText(example.model.SumRes2) + ","));
  EXPECT_THAT(manual, HasSubstr("the two averages read " + numberText(example.model.AvgGiven) + " and " +
                                numberText(example.model.AvgEstimated)));
}

TEST(EqualValues, HaveTheCorrelationThatTheDocumentsState) {
  const std::string statement = "nine values 0.1 on [0, 1] with degree 2 about the middle give " +
                                test::shortText(test::correlationOfEqualValues());
  EXPECT_THAT(document("help/tavimor.hlp", " "), HasSubstr(statement));
  EXPECT_THAT(document("docs/numerics.md", " "), HasSubstr(statement));
}

// Where their average comes out exactly, the divisor of the correlation is 0.
TEST(EqualValues, OfAnExactAverageHaveTheCorrelation1) {
  Dimension model = test::problem({{"x", test::spaced(0, 1, 9), 2, 0.5}});
  test::tabulate(model, [](double, double, double, double) { return 0.5; });
  test::compute(model);
  EXPECT_EQ(model.CorrCoef, 1.0);
}

}  // namespace
}  // namespace tavimor
