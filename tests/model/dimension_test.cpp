#include "model/Dimension.h"

#include <gtest/gtest.h>

#include <cmath>

#include "model/value_lists.h"
#include "support/stored_problems.h"

namespace tavimor {
namespace {

TEST(Dimension, BeginsEmptyWithOneValuePerAxis) {
  const Dimension model;
  EXPECT_EQ(model.LastVar, 0);
  EXPECT_FALSE(model.FitDone);
  for (Long v = 0; v < kMaxVariables; ++v) EXPECT_EQ(valueList(model, v), std::vector<double>{0});
  for (const Table4* table : {&model.F, &model.Coef, &model.FitGrid}) {
    EXPECT_EQ(table->last(), PerVariable<Long>{});
    EXPECT_EQ((*table)(0, 0, 0, 0), 0);
  }
}

TEST(Dimension, KnowsTheConstants) {
  const Dimension model;
  EXPECT_EQ(model.HalfPi, 2 * std::atan(1.0));
  EXPECT_EQ(model.Pi, 4 * std::atan(1.0));
  EXPECT_EQ(model.E, std::exp(1.0));
}

TEST(ClearVariables, ClearsWhatIsKeptPerVariable) {
  Dimension model = test::gridProblem({2, 3, 4, 5});
  model.Centre = model.Period = {1, 2, 3, 4};
  model.AddCount = model.StartIdx = {1, 2, 3, 4};
  model.PeriodFlag = model.TrigFlag = {true, true, true, true};
  ClearVariables(model);
  const Dimension empty;
  EXPECT_EQ(model.VarName, empty.VarName);
  for (const auto entries :
       {&Dimension::LowerLimit, &Dimension::UpperLimit, &Dimension::Centre, &Dimension::Step, &Dimension::Period})
    EXPECT_EQ(model.*entries, empty.*entries);
  for (const auto entries : {&Dimension::Degree, &Dimension::LastPoint, &Dimension::AddCount})
    EXPECT_EQ(model.*entries, empty.*entries);
  EXPECT_EQ(model.StartIdx, empty.StartIdx);
  for (const auto entries :
       {&Dimension::EquallySpaced, &Dimension::ValuesGiven, &Dimension::PeriodFlag, &Dimension::TrigFlag})
    EXPECT_EQ(model.*entries, empty.*entries);
}

}  // namespace
}  // namespace tavimor
