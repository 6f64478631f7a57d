#include "analysis/pair_sums.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>
#include <random>

#include "analysis/typed_value.h"
#include "support/exact_fit.h"

// Every instruction set has to give the bits of the plain loops.
namespace tavimor {
namespace {

constexpr InstructionSet kSets[] = {InstructionSet::Plain, InstructionSet::Baseline, InstructionSet::Avx2,
                                    InstructionSet::Avx512};

std::vector<const PairSums*> availableSets() {
  std::vector<const PairSums*> sets;
  for (const InstructionSet set : kSets)
    if (hasInstructionSet(set)) sets.push_back(&pairSums(set));
  return sets;
}

PairList randomPairs(std::size_t count, unsigned seed) {
  std::mt19937_64 random(seed);
  std::normal_distribution<double> normal;
  PairList list(count);
  for (std::size_t n = 0; n < count; ++n) {
    list.high[n] = normal(random);
    list.low[n] = 0x1p-54 * list.high[n] * normal(random) / 4;
  }
  return list;
}

void expectSameBits(const std::vector<double>& a, const std::vector<double>& b) {
  ASSERT_EQ(a.size(), b.size());
  for (std::size_t n = 0; n < a.size(); ++n)
    EXPECT_EQ(std::bit_cast<std::uint64_t>(a[n]), std::bit_cast<std::uint64_t>(b[n])) << n;
}

void expectSameBits(const Pair& a, const Pair& b) {
  expectSameBits(std::vector{a.high, a.low}, std::vector{b.high, b.low});
}

void expectSameBits(const PairList& a, const PairList& b) {
  expectSameBits(a.high, b.high);
  expectSameBits(a.low, b.low);
}

TEST(PairSums, ContractionsAreTheSameEverywhereAndRight) {
  for (const std::size_t columns : {1, 2, 3, 4, 5, 6, 7, 9, 11}) {
    constexpr std::size_t points = 29, lanes = 16;
    PairList table = randomPairs(points * lanes, 1), list = randomPairs(points * columns, 2);
    std::vector<Pair> matrix;
    for (std::size_t n = 0; n < points * columns; ++n) matrix.emplace_back(list.high[n], list.low[n]);
    PairList wanted(columns * lanes);
    pairSums(InstructionSet::Plain).contract(Pairs(table), points, lanes, matrix.data(), columns, columns, wanted);
    for (const PairSums* sums : availableSets()) {
      PairList got(columns * lanes);
      sums->contract(Pairs(table), points, lanes, matrix.data(), columns, columns, got);
      expectSameBits(got, wanted);
    }
    for (std::size_t c = 0; c < columns; ++c) {
      mpq_class exact, size;
      for (std::size_t p = 0; p < points; ++p) {
        const mpq_class product =
            test::exactly({table.high[p * lanes], table.low[p * lanes]}) * test::exactly(matrix[p * columns + c]);
        exact += product;
        size += abs(product);
      }
      const double error = test::distance({wanted.high[c * lanes], wanted.low[c * lanes]}, exact);
      EXPECT_LE(error, 4096 * kUnitRoundoff * kUnitRoundoff * size.get_d());
    }
  }
}

TEST(PairSums, DotProductsAreTheSameEverywhereAndForAnyNumberOfColumns) {
  constexpr std::size_t most = 11;
  PairList a = randomPairs(kMostDotted, 3), columns = randomPairs(most * kMostDotted, 4);
  for (const std::size_t count : {kChains, 5 * kChains, kMostDotted}) {
    ChainSums wanted(most);
    for (std::size_t c = 0; c < most; ++c)
      pairSums(InstructionSet::Plain).dots(Pairs(a), Pairs(columns) + c * kMostDotted, 0, 1, count, wanted.from(c));
    for (const PairSums* sums : availableSets())
      for (std::size_t columnCount = 1; columnCount <= most; ++columnCount) {
        ChainSums got(columnCount);
        sums->dots(Pairs(a), Pairs(columns), kMostDotted, columnCount, count, got.from(0));
        for (std::size_t c = 0; c < columnCount; ++c) expectSameBits(got.total(c), wanted.total(c));
      }
  }
}

TEST(PairSums, SquaresAreProductsWithThemselves) {
  PairList a = randomPairs(kMostDotted, 16);
  for (const std::size_t count : {kChains, 5 * kChains, kMostDotted}) {
    ChainSums wanted(1);
    pairSums(InstructionSet::Plain).dots(Pairs(a), Pairs(a), 0, 1, count, wanted.from(0));
    for (const PairSums* sums : availableSets()) {
      ChainSums got(1);
      sums->squares(Pairs(a), count, got.from(0));
      expectSameBits(got.total(0), wanted.total(0));
    }
  }
}

TEST(PairSums, RecurrencesAndFoldsAreTheSameEverywhere) {
  constexpr std::size_t count = 5 * kChains;
  PairList t = randomPairs(count, 5), current = randomPairs(count, 6), previous = randomPairs(count, 7);
  const RecurrenceStep step{0.3, 2.0, {0.7, 1e-18}};
  PairList wanted(count), wantedSum(count), wantedDifference(count);
  const PairSums& plain = pairSums(InstructionSet::Plain);
  const double largest = plain.advance(step, Pairs(t), Pairs(current), Pairs(previous), count, wanted);
  plain.sumAndDifference(Pairs(t), Pairs(current), count, wantedSum, wantedDifference);
  for (const PairSums* sums : availableSets()) {
    PairList got(count), sum(count), difference(count);
    EXPECT_EQ(sums->advance(step, Pairs(t), Pairs(current), Pairs(previous), count, got), largest);
    expectSameBits(got, wanted);
    sums->sumAndDifference(Pairs(t), Pairs(current), count, sum, difference);
    expectSameBits(sum, wantedSum);
    expectSameBits(difference, wantedDifference);
  }
}

TEST(PairSums, ChebyshevsPolynomialsAreTheSameEverywhereAndRight) {
  constexpr std::size_t count = 5 * kChains;
  PairList twice = randomPairs(count, 9), current = randomPairs(count, 10), previous = randomPairs(count, 11);
  PairList wanted(count);
  pairSums(InstructionSet::Plain).advanceChebyshev(Pairs(twice), Pairs(current), Pairs(previous), count, wanted);
  for (const PairSums* sums : availableSets()) {
    PairList got(count);
    sums->advanceChebyshev(Pairs(twice), Pairs(current), Pairs(previous), count, got);
    expectSameBits(got, wanted);
  }
  for (std::size_t n = 0; n < count; ++n) {
    const mpq_class product =
        test::exactly({twice.high[n], twice.low[n]}) * test::exactly({current.high[n], current.low[n]});
    const mpq_class before = test::exactly({previous.high[n], previous.low[n]});
    const mpq_class size = abs(product) + abs(before);
    EXPECT_LE(test::distance({wanted.high[n], wanted.low[n]}, product - before), 5 * kPairError * size.get_d());
  }
}

TEST(PairSums, ChebyshevsPolynomialsTakeNoLowPartsForZeros) {
  constexpr std::size_t count = 5 * kChains;
  PairList twice = randomPairs(count, 9), current = randomPairs(count, 10), previous = randomPairs(count, 11);
  std::fill(twice.low.begin(), twice.low.end(), 0.0);
  for (const PairSums* sums : availableSets()) {
    PairList wanted(count), got(count);
    sums->advanceChebyshev(Pairs(twice), Pairs(current), Pairs(previous), count, wanted);
    sums->advanceChebyshev({twice.high.data(), nullptr}, Pairs(current), Pairs(previous), count, got);
    expectSameBits(got, wanted);
  }
}

TEST(PairSums, PointsAddUpToWhatTheirProductsWithOnesAre) {
  constexpr std::size_t points = 29, lanes = 24;
  PairList table = randomPairs(points * lanes, 12);
  const std::vector<Pair> ones(points, 1.0);
  PairList wanted(lanes);
  pairSums(InstructionSet::Plain).contract(Pairs(table), points, lanes, ones.data(), 1, 1, wanted);
  for (const PairSums* sums : availableSets()) {
    PairList got(lanes);
    sums->addUp(Pairs(table), points, lanes, got);
    expectSameBits(got, wanted);
  }
}

TEST(PairSums, FoldedWeightsAreTheSameEverywhere) {
  PairList a = randomPairs(kMostDotted, 13), b = randomPairs(kMostDotted, 14);
  const auto fold = [&](const PairSums& sums, std::vector<double>& sum, std::vector<double>& difference) {
    sums.foldWeights(a.high.data(), a.low.data(), b.high.data(), b.low.data(), kMostDotted, sum.data(),
                     difference.data());
  };
  std::vector<double> wantedSum(kMostDotted), wantedDifference(kMostDotted);
  fold(pairSums(InstructionSet::Plain), wantedSum, wantedDifference);
  EXPECT_EQ(wantedDifference[7], a.high[7] * a.low[7] - b.high[7] * b.low[7]);
  for (const PairSums* sums : availableSets()) {
    std::vector<double> sum(kMostDotted), difference(kMostDotted);
    fold(*sums, sum, difference);
    expectSameBits(sum, wantedSum);
    expectSameBits(difference, wantedDifference);
  }
}

TEST(PairSums, SumsInDoublesAreTheSameEverywhere) {
  constexpr std::size_t most = 6;
  PairList weights = randomPairs(kWeights * kMostDotted, 17), columns = randomPairs(most * kMostDotted, 15);
  std::vector<double> wanted(kWeights * most * kChains);
  for (std::size_t w = 0; w < kWeights; ++w)
    for (std::size_t c = 0; c < most; ++c)
      for (std::size_t n = 0; n < kMostDotted; ++n)
        wanted[(w * most + c) * kChains + n % kChains] +=
            weights.high[w * kMostDotted + n] * columns.high[c * kMostDotted + n];
  for (const PairSums* sums : availableSets()) {
    std::vector<double> got(wanted.size());
    const auto addColumns = [&](std::size_t first, std::size_t count) {
      sums->doubleDots(weights.high.data(), &columns.high[first * kMostDotted], kMostDotted, count, kMostDotted,
                       &got[first * kChains], most * kChains);
    };
    addColumns(0, 5);
    addColumns(5, 1);
    expectSameBits(got, wanted);
  }
}

std::vector<double> numbersOfAllKinds() {
  std::vector<double> values = {0.0, -0.0, 0.1, 1e14, 1e15, 123456789012345.0, 1e-8, 9.99999999999999e-9, 1e22, 5e-324};
  std::mt19937_64 random(8);
  for (int n = 0; n < 5000; ++n) {
    char text[40];
    std::snprintf(text, sizeof text, "%.*E", std::uniform_int_distribution<int>(0, 16)(random),
                  std::ldexp(std::uniform_real_distribution<double>(-1, 1)(random),
                             std::uniform_int_distribution<int>(-40, 60)(random)));
    values.push_back(test::exactValue(std::strtod(text, nullptr), Reading::AsStored).get_d());
  }
  return values;
}

TEST(PairSums, TypedLowsAreThoseOfTypedValue) {
  const std::vector<double> values = numbersOfAllKinds();
  for (const PairSums* sums : availableSets()) {
    std::vector<double> low(values.size());
    EXPECT_FALSE(sums->typedLows(values.data(), values.size(), low.data()).exact);
    for (std::size_t n = 0; n < values.size(); ++n) ASSERT_EQ(low[n], typedLow(values[n])) << values[n];
  }
}

TEST(PairSums, RowsAreReadAsIfTheyStoodSideBySide) {
  constexpr std::size_t stride = 27, lanes = 2 * kChains;
  std::vector<double> values = numbersOfAllKinds();
  for (double& value : values) value = std::round(value * 1e4) / 1e4;
  const std::vector<std::size_t> rows = {7, 8, 0, 20, 3};
  for (const PairSums* sums : availableSets()) {
    PairList wanted(rows.size() * lanes), got(rows.size() * lanes);
    for (std::size_t r = 0; r < rows.size(); ++r)
      std::copy_n(&values[rows[r] * stride], lanes, &wanted.high[r * lanes]);
    const TypedValues atOnce = sums->typedLows(wanted.high.data(), wanted.high.size(), wanted.low.data());
    const TypedValues typed = sums->typedRows(values.data(), rows.data(), rows.size(), stride, lanes, got);
    expectSameBits(got, wanted);
    EXPECT_EQ(typed.exact, atOnce.exact);
    EXPECT_EQ(typed.ordinary, atOnce.ordinary);
  }
}

TEST(PairSums, DecimalsThatDoublesHoldAreNoticed) {
  std::vector<double> values = {1, 2.5, -0.375, 0, 1024, 3, 4, 5, 6};
  std::vector<double> low(values.size());
  for (const PairSums* sums : availableSets())
    EXPECT_TRUE(sums->typedLows(values.data(), values.size(), low.data()).exact);
  for (const std::size_t place : {0, 8}) {
    std::vector<double> one = values;
    one[place] = 0.1;
    for (const PairSums* sums : availableSets())
      EXPECT_FALSE(sums->typedLows(one.data(), one.size(), low.data()).exact);
  }
}

TEST(PairSums, ValuesThatAreNotOrdinaryAreNoticed) {
  const double infinity = std::numeric_limits<double>::infinity();
  const std::vector<double> ordinary = {1, -2.5, 0x1p-20, 0.1, -1e14, 3, 4, 5, 6, 0.7, 8};
  const auto isOrdinary = [](const PairSums& sums, const std::vector<double>& values) {
    std::vector<double> low(values.size());
    return sums.typedLows(values.data(), values.size(), low.data()).ordinary;
  };
  for (const PairSums* sums : availableSets())
    for (const double one : {0.0, -0.0, 5e-324, 0x1p-65, 0x1p64, -infinity, std::nan("")})
      for (std::size_t place = 0; place < ordinary.size(); ++place) {
        std::vector<double> values = ordinary;
        values[place] = one;
        EXPECT_FALSE(isOrdinary(*sums, values)) << one << " at " << place;
      }
  const std::vector<double> wholeRegisters(ordinary.begin(), ordinary.begin() + kChains);
  for (const PairSums* sums : availableSets()) EXPECT_TRUE(isOrdinary(*sums, wholeRegisters));
}

TEST(PairSums, RangesAreFound) {
  const std::vector<double> values = {2, -3, 1e-200, 2, 0, 0, 1e-9, 2.5, 1, -1, 0};
  for (const PairSums* sums : availableSets()) {
    for (std::size_t count = 1; count <= values.size(); ++count) {
      const auto [least, most] =
          std::minmax_element(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(count));
      const ValueRange found = sums->range(values.data(), count);
      EXPECT_EQ(found.least, *least);
      EXPECT_EQ(found.most, *most);
    }
    for (const double bad : {std::numeric_limits<double>::infinity(), std::nan("")})
      for (std::size_t place = 0; place < values.size(); ++place) {
        std::vector<double> spoilt = values;
        spoilt[place] = bad;
        const ValueRange found = sums->range(spoilt.data(), spoilt.size());
        EXPECT_TRUE(std::isnan(found.least) && std::isnan(found.most)) << place;
      }
  }
}

TEST(PairSums, MagnitudesAreFound) {
  for (const PairSums* sums : availableSets()) {
    const std::vector<double> values = {0, -3, 1e-200, 2, 0, 0, 1e-9, 2.5, 1, -1, 0};
    for (std::size_t count = 3; count <= values.size(); ++count) {
      const Magnitudes found = sums->magnitudes(values.data(), count);
      EXPECT_TRUE(found.allFinite);
      EXPECT_EQ(found.largest, 3);
      EXPECT_EQ(found.smallest, 1e-200);
    }
    const std::vector<double> zeros(5);
    EXPECT_EQ(sums->magnitudes(zeros.data(), zeros.size()).smallest, 0.0);
    for (const double bad : {std::numeric_limits<double>::infinity(), std::nan("")})
      for (std::size_t place = 0; place < values.size(); ++place) {
        std::vector<double> spoilt = values;
        spoilt[place] = bad;
        EXPECT_FALSE(sums->magnitudes(spoilt.data(), spoilt.size()).allFinite) << place;
      }
  }
}

}  // namespace
}  // namespace tavimor
