#include "support/stored_problems.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>

#include "model/value_lists.h"

namespace tavimor::test {

namespace {

int below(std::mt19937_64& random, int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); }

// A finite number of any magnitude. The topmost ones are left out: their fifteen digits may round to infinity.
double randomNumber(std::mt19937_64& random) {
  if (below(random, 4) == 0) return below(random, 2000) - 1000;
  const auto value = std::bit_cast<double>(std::uint64_t{random()});
  return std::abs(value) < 1e308 ? value : 0.1;
}

std::string randomName(std::mt19937_64& random) {
  const std::vector<std::string> pieces = {"x", "speed", " ", "\"", "°", "ü", "in", "1", ";", "#", "'", "€"};
  std::string name;
  for (int n = below(random, 6); n > 0; --n) name += pieces[below(random, static_cast<int>(pieces.size()))];
  return name;
}

bool haveSameBits(double a, double b) { return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b); }

void fill(Table4& table, std::mt19937_64& random) {
  std::generate_n(table.data(), table.size(), [&] { return randomNumber(random); });
}

void expectSameTable(const Table4& got, const Table4& wanted) {
  ASSERT_EQ(got.last(), wanted.last());
  EXPECT_TRUE(std::equal(got.data(), got.data() + got.size(), wanted.data(), haveSameBits));
}

}  // namespace

Dimension gridProblem(const std::vector<Long>& counts) {
  Dimension model;
  model.LastVar = static_cast<Long>(counts.size()) - 1;
  for (Long v = 0; v <= model.LastVar; ++v) {
    model.VarName[v] = std::string(1, "xyzw"[v]);
    model.LastPoint[v] = counts[v] - 1;
    model.UpperLimit[v] = model.LastPoint[v];
    model.Degree[v] = 1;
    model.Step[v] = 1;
    model.EquallySpaced[v] = true;
    giveDefaultValues(model, v);
  }
  model.F.redim(model.LastPoint);
  for (std::size_t n = 0; n < model.F.size(); ++n) model.F.data()[n] = 100 + static_cast<double>(n) / 8;
  return model;
}

void pretendFit(Dimension& model) {
  model.FitDone = true;
  model.Coef.redim(model.Degree);
  for (std::size_t n = 0; n < model.Coef.size(); ++n) model.Coef.data()[n] = -3 + static_cast<double>(n) / 4;
  model.NumGridPoints = static_cast<Long>(model.F.size());
  model.CorrCoef = 0.998;
  model.StdErr = 0.012;
  model.SumRes2 = 0.5;
  model.AvgGiven = 2.5;
  model.AvgEstimated = 2.25;
}

Dimension markedProblem(double mark) {
  Dimension model = gridProblem({2, 2});
  pretendFit(model);
  model.LowerLimit = {mark, mark};
  for (Table4* table : {&model.F, &model.Coef}) std::fill_n(table->data(), table->size(), mark);
  model.AvgGiven = mark;
  return model;
}

Dimension randomProblem(std::mt19937_64& random) {
  Dimension model;
  model.LastVar = below(random, kMaxVariables);
  for (Long v = 0; v <= model.LastVar; ++v) {
    model.VarName[v] = randomName(random);
    model.LowerLimit[v] = randomNumber(random);
    model.UpperLimit[v] = randomNumber(random);
    model.Centre[v] = randomNumber(random);
    model.PeriodFlag[v] = below(random, 2) == 0;
    model.Period[v] = randomNumber(random);
    model.Degree[v] = below(random, 4);
    model.LastPoint[v] = below(random, 5);
    model.EquallySpaced[v] = below(random, 2) == 0;
    model.ValuesGiven[v] = true;
    ResizeVarValues(model, v);
    for (Long i = 0; model.LastPoint[v] > 0 && i <= model.LastPoint[v]; ++i)
      valueList(model, v)[i] = randomNumber(random);
  }
  model.F.redim(model.LastPoint);
  fill(model.F, random);
  if (below(random, 2) == 0) return model;
  pretendFit(model);
  fill(model.Coef, random);
  for (double* statistic : {&model.CorrCoef, &model.StdErr, &model.SumRes2, &model.AvgGiven, &model.AvgEstimated})
    *statistic = randomNumber(random);
  return model;
}

std::vector<double> valuesLastIndexFastest(const Table4& table) {
  std::vector<double> values;
  for (Long i0 = 0; i0 <= table.last()[0]; ++i0)
    for (Long i1 = 0; i1 <= table.last()[1]; ++i1)
      for (Long i2 = 0; i2 <= table.last()[2]; ++i2)
        for (Long i3 = 0; i3 <= table.last()[3]; ++i3) values.push_back(table(i0, i1, i2, i3));
  return values;
}

void expectSameProblem(const Dimension& got, const Dimension& wanted) {
  EXPECT_EQ(got.LastVar, wanted.LastVar);
  EXPECT_EQ(got.VarName, wanted.VarName);
  EXPECT_EQ(got.LowerLimit, wanted.LowerLimit);
  EXPECT_EQ(got.UpperLimit, wanted.UpperLimit);
  EXPECT_EQ(got.Centre, wanted.Centre);
  EXPECT_EQ(got.PeriodFlag, wanted.PeriodFlag);
  EXPECT_EQ(got.Period, wanted.Period);
  EXPECT_EQ(got.Degree, wanted.Degree);
  EXPECT_EQ(got.LastPoint, wanted.LastPoint);
  EXPECT_EQ(got.EquallySpaced, wanted.EquallySpaced);
  EXPECT_EQ(got.ValuesGiven, wanted.ValuesGiven);
  for (Long v = 0; v < kMaxVariables; ++v) EXPECT_EQ(valueList(got, v), valueList(wanted, v)) << "variable " << v;
  expectSameTable(got.F, wanted.F);
  ASSERT_EQ(got.FitDone, wanted.FitDone);
  if (!got.FitDone) return;
  expectSameTable(got.Coef, wanted.Coef);
  EXPECT_EQ(got.NumGridPoints, wanted.NumGridPoints);
  EXPECT_EQ(got.CorrCoef, wanted.CorrCoef);
  EXPECT_EQ(got.StdErr, wanted.StdErr);
  EXPECT_EQ(got.SumRes2, wanted.SumRes2);
  EXPECT_EQ(got.AvgGiven, wanted.AvgGiven);
  EXPECT_EQ(got.AvgEstimated, wanted.AvgEstimated);
}

}  // namespace tavimor::test
