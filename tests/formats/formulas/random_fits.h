#pragma once

#include <random>

#include "support/problem.h"

namespace tavimor::test {

/// Fitted problems of one to four variables with names that no language takes as they are.
class RandomFits {
 public:
  explicit RandomFits(unsigned seed) : random_(seed) {}

  Dimension next() {
    const std::vector<std::string> names = {"x",  "T °C", "größe", "lambda", "x", "do",   "5\" disk", "λ",
                                            "if", "t0",   "s0",    "j0",     "",  "/*\\", "Double",   "I"};
    const Long mostPoints[] = {0, 12, 7, 5, 4};
    const Long variables = whole(1, kMaxVariables);
    std::vector<Axis> axes;
    for (Long k = 0; k < variables; ++k) {
      const Long points = whole(2, mostPoints[variables]);
      axes.push_back({names[whole(0, static_cast<Long>(names.size()) - 1)], {}, whole(0, points - 1), number()});
      for (Long i = 0; i < points; ++i) axes.back().values.push_back(number() + 3.0 * i);
    }
    Dimension model = problem(axes);
    tabulate(model, [&](double, double, double, double) { return 100.0 * number(); });
    compute(model);
    return model;
  }

  Long whole(Long least, Long most) { return std::uniform_int_distribution<Long>(least, most)(random_); }
  double number() { return std::normal_distribution<double>(0.0, 1.0)(random_); }

 private:
  std::mt19937 random_;
};

}  // namespace tavimor::test
