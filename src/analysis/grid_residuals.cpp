#include "analysis/grid_residuals.h"

#include <cmath>

#include "analysis/residual_pass.h"

namespace tavimor {

namespace {

// Puts the points together in their order.
class Collector {
 public:
  explicit Collector(int exponent) : exponent_(exponent) {}

  void add(const Pair& residual, const Pair& leverage, const PerVariable<Long>& at) {
    const Pair rest = Pair(1.0) - leverage;
    if (rest.high <= kLeverageOfOne) hasFullLeverage_ = true;
    const double deleted = residual.high / rest.high;
    press_ = press_ + twoProduct(deleted, deleted);
    if (std::fabs(residual.high) > std::fabs(result_.largest)) {
      result_.largest = residual.high;
      result_.largestAt = at;
    }
    if (leverage.high > result_.largestLeverage) {
      result_.largestLeverage = leverage.high;
      result_.largestLeverageAt = at;
    }
  }

  GridResiduals result() const {
    GridResiduals result = result_;
    result.largest = std::ldexp(result.largest, exponent_);
    if (!hasFullLeverage_) result.press = scaled(press_, 2 * exponent_).high;
    return result;
  }

 private:
  int exponent_;
  GridResiduals result_;
  Pair press_;
  bool hasFullLeverage_ = false;
};

}  // namespace

GridResiduals gridResiduals(const ProblemData& data, const Decomposition& decomposition,
                            const AnalysisOptions& options) {
  Collector collector(decomposition.exponent);
  forEachResidual(data, decomposition, options,
                  [&](const Pair& residual, const Pair& leverage, const PerVariable<Long>& at) {
                    collector.add(residual, leverage, at);
                  });
  return collector.result();
}

}  // namespace tavimor
