#include "formats/tables/column_values.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <numeric>

namespace tavimor {

namespace {

// A set of doubles that numbers them as they come. Open addressing: half of the places stay free at least.
class NumberedValues {
 public:
  NumberedValues() : places_(1024, kNoIndex) {}

  std::uint32_t numberOf(double value) {
    std::size_t at = placeOf(value);
    if (places_[at] != kNoIndex) return places_[at];
    const auto number = static_cast<std::uint32_t>(values_.size());
    values_.push_back(value);
    places_[at] = number;
    if (values_.size() * 2 > places_.size()) grow();
    return number;
  }

  const std::vector<double>& values() const { return values_; }

 private:
  std::size_t placeOf(double value) const {
    // Fibonacci hashing (Knuth, The Art of Computer Programming, vol. 3, 6.4); the high bits are the mixed ones.
    constexpr std::uint64_t golden = 0x9E3779B97F4A7C15;
    const std::uint64_t bits = std::bit_cast<std::uint64_t>(value);
    const std::uint64_t hash = (bits ^ (bits >> 32)) * golden;
    std::size_t at = static_cast<std::size_t>(hash >> (64 - std::countr_zero(places_.size())));
    while (places_[at] != kNoIndex && values_[places_[at]] != value) at = (at + 1) & (places_.size() - 1);
    return at;
  }

  void grow() {
    places_.assign(places_.size() * 2, kNoIndex);
    for (std::size_t n = 0; n < values_.size(); ++n) places_[placeOf(values_[n])] = static_cast<std::uint32_t>(n);
  }

  std::vector<double> values_;
  std::vector<std::uint32_t> places_;  // a power of two of them
};

std::vector<std::uint32_t> ascending(const std::vector<double>& values) {
  std::vector<std::uint32_t> order(values.size());
  std::iota(order.begin(), order.end(), 0);
  std::sort(order.begin(), order.end(), [&](std::uint32_t a, std::uint32_t b) { return values[a] < values[b]; });
  return order;
}

std::vector<std::size_t> frequencies(const LargeList<std::uint32_t>& index, std::size_t values) {
  std::vector<std::size_t> frequency(values);
  for (const std::uint32_t i : index)
    if (i != kNoIndex) ++frequency[i];
  return frequency;
}

MergedValues mergedGroup(const std::vector<double>& found, const std::vector<std::size_t>& frequency,
                         std::span<const std::uint32_t> group) {
  MergedValues merged;
  for (const std::uint32_t number : group) merged.values.push_back(found[number]);
  merged.kept = found[*std::max_element(group.begin(), group.end(),
                                        [&](std::uint32_t a, std::uint32_t b) { return frequency[a] < frequency[b]; })];
  return merged;
}

// The column's index numbers the values as they were found; returns those values.
std::vector<double> numberValues(std::span<const double> numbers, LargeList<std::uint32_t>& index) {
  NumberedValues found;
  double before = 0.0;
  std::uint32_t numberBefore = kNoIndex;
  index.resize(numbers.size());
  for (std::size_t row = 0; row < numbers.size(); ++row) {
    const double value = numbers[row] + 0.0;  // -0 is 0
    if (numberBefore == kNoIndex || value != before) {
      before = value;
      numberBefore = std::isnan(value) ? kNoIndex : found.numberOf(value);
    }
    index[row] = numberBefore;
  }
  return found.values();
}

// Joins the found values within the tolerance. Returns, for each found value, the number of the one that stands for it.
std::vector<std::uint32_t> joinValues(const std::vector<double>& found, double tolerance, ColumnValues& column) {
  const std::vector<std::uint32_t> order = ascending(found);
  const double within = tolerance * found[order.back()] - tolerance * found[order.front()];
  std::vector<std::uint32_t> rank(found.size());
  std::vector<std::size_t> frequency;
  for (std::size_t first = 0, behind = 0; first < order.size(); first = behind) {
    while (behind < order.size() && (behind == first || found[order[behind]] - found[order[first]] <= within))
      rank[order[behind++]] = static_cast<std::uint32_t>(column.values.size());
    if (behind - first > 1) {
      if (frequency.empty()) frequency = frequencies(column.index, found.size());
      column.merged.push_back(mergedGroup(found, frequency, std::span(order).subspan(first, behind - first)));
    }
    column.values.push_back(behind - first > 1 ? column.merged.back().kept : found[order[first]]);
  }
  return rank;
}

}  // namespace

ColumnValues findValues(std::span<const double> numbers, double tolerance) {
  ColumnValues column;
  const std::vector<double> found = numberValues(numbers, column.index);
  if (found.empty()) return column;
  const std::vector<std::uint32_t> rank = joinValues(found, tolerance, column);
  for (std::uint32_t& i : column.index)
    if (i != kNoIndex) i = rank[i];
  return column;
}

}  // namespace tavimor
