#include "analysis/contraction.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "support/problem.h"

namespace tavimor {
namespace {

PairTable randomTable(const PerVariable<std::size_t>& extent) {
  std::mt19937_64 random(3);
  std::normal_distribution<double> normal;
  PairTable table(extent);
  for (std::size_t n = 0; n < table.size(); ++n) table.set(n, Pair(normal(random)) + Pair(0x1p-54 * normal(random)));
  return table;
}

AxisBasis basisOf(const std::vector<double>& values, Long degree) {
  const Dimension model = test::problem({{"x", values, degree, 0}});
  return axisBasis(problemData(model).axis[0], {});
}

struct MirroredCase {
  const char* name;
  std::vector<double> values;
};

std::vector<double> withOneAside(std::vector<double> values) {
  values[values.size() / 5] += 1e-15;
  return values;
}

const MirroredCase kMirroredCases[] = {
    {"OfAnEvenCount", test::spaced(-1, 1, 18)},
    {"WithOneInTheMiddle", test::spaced(-1, 1, 33)},
    {"OfMoreThanABlock", test::spaced(-1, 1, 129)},
    {"WithAValueAside", withOneAside(test::spaced(-1, 1, 65))},
};

class MirroredAxis : public testing::TestWithParam<MirroredCase> {};

TEST_P(MirroredAxis, IsContractedAsByTheWholeMatrix) {
  for (const Long degree : {0, 1, 4, 7}) {
    const AxisBasis basis = basisOf(GetParam().values, degree);
    ASSERT_FALSE(basis.mirrored.empty());
    for (const int k : {0, 1}) {
      PerVariable<std::size_t> extent{k == 0 ? basis.count : 70, k == 1 ? basis.count : 3, 2, 1};
      const PairTable table = randomTable(extent);
      const PairTable wanted = contracted(table, k, basis.values, {}), got = contracted(table, k, basis, {});
      ASSERT_EQ(got.extent, wanted.extent);
      const double size = 10 * static_cast<double>(basis.count);  // of the sum of magnitudes
      for (std::size_t n = 0; n < wanted.size(); ++n)
        ASSERT_LE(std::fabs((got.at(n) - wanted.at(n)).high), sumError(basis.count) * size) << n;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Cases, MirroredAxis, testing::ValuesIn(kMirroredCases),
                         [](const auto& one) { return std::string(one.param.name); });

}  // namespace
}  // namespace tavimor
