#include "model/salvage_specs.h"

#include <gtest/gtest.h>

#include "model/capture_specs.h"
#include "runtime/run_time_error.h"
#include "support/problem.h"

namespace tavimor {
namespace {

using Values = std::vector<double>;

class SalvageSpecs : public testing::Test {
 protected:
  SalvageSpecs() : model(test::problem({{"x", {0, 1, 4}, 1, 0.5}, {"y", {0, 1}, 1, 0}})) {
    test::tabulate(model, [](double x, double y, double, double) { return 10 * x + y; });
    fields[0] = {"0", "4", "1", "3", "0.5", false};
    fields[1] = {"0", "1", "1", "2", "*", false};
  }

  void salvage() { salvageSpecs(model, model, fields); }

  Dimension model;
  AllSpecFields fields;
};

TEST_F(SalvageSpecs, TakesEveryFieldThatCanBeRead) {
  fields[0] = {"-2", "2", "2", "3", "1.25", true};
  salvage();
  EXPECT_EQ(model.LowerLimit[0], -2);
  EXPECT_EQ(model.UpperLimit[0], 2);
  EXPECT_EQ(model.Degree[0], 2);
  EXPECT_EQ(model.Centre[0], 1.25);
  EXPECT_EQ(model.X0, (Values{-2, 0, 2}));
  EXPECT_EQ(model.Centre[1], 0.5);
  EXPECT_EQ(model.X1, (Values{0, 1}));
}

TEST_F(SalvageSpecs, AFieldThatCannotBeReadLeavesWhatIsThere) {
  fields[0] = {"", "1E400", "2147483648", "many", "0.25", false};
  fields[1] = {"-1E308", "1E308", "-1", "2", "*", true};
  model.Centre[1] = 0.75;
  salvage();
  EXPECT_EQ(model.LowerLimit[0], 0);
  EXPECT_EQ(model.UpperLimit[0], 4);
  EXPECT_EQ(model.Degree[0], 1);
  EXPECT_EQ(model.LastPoint[0], 2);
  EXPECT_EQ(model.Centre[0], 0.25);
  EXPECT_EQ(model.X0, (Values{0, 1, 4}));
  EXPECT_EQ(model.Degree[1], 1);
  EXPECT_EQ(model.Centre[1], 0) << "the middle can be reckoned: 0";
  EXPECT_EQ(model.X1, (Values{0, 1})) << "a step beyond the range leaves the values";
}

TEST_F(SalvageSpecs, AllValuesStayWhenANumberOfValuesGrows) {
  fields[1].txtPoints = "4";
  salvage();
  EXPECT_EQ(model.F.last(), (PerVariable<Long>{2, 3}));
  EXPECT_EQ(model.F(2, 1, 0, 0), 41);
  EXPECT_EQ(model.F(2, 3, 0, 0), 0);
  EXPECT_EQ(model.X1.size(), 4u);
  EXPECT_EQ(model.NumGridPoints, 12);
}

TEST_F(SalvageSpecs, ANumberOfValuesThatNoTableHoldsGivesWay) {
  fields[1].txtPoints = "2147483647";
  EXPECT_THROW(CaptureSpecs(model, fields), RunTimeError);
  salvage();
  EXPECT_EQ(model.LastPoint, (PerVariable<Long>{2, 1}));
  EXPECT_EQ(model.F(2, 1, 0, 0), 41);
}

TEST_F(SalvageSpecs, ASingleValueIsNoObstacle) {
  fields[1].txtPoints = "1";
  salvage();
  EXPECT_EQ(model.LastPoint[1], 0);
  EXPECT_EQ(model.F(2, 0, 0, 0), 40);
}

TEST_F(SalvageSpecs, TheFitStaysWithItsProblemOnly) {
  test::compute(model);
  ASSERT_TRUE(model.FitDone);
  salvage();
  EXPECT_TRUE(model.FitDone);
  fields[0].txtTerms = "2";
  salvage();
  EXPECT_FALSE(model.FitDone);
}

}  // namespace
}  // namespace tavimor
