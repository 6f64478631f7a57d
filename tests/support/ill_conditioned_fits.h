#pragma once

#include <cstdio>
#include <string>
#include <utility>
#include <vector>

#include "runtime/number_text.h"
#include "runtime/val.h"
#include "support/problem.h"

namespace tavimor::test {

/// The experiments on the manual's page of ill-conditioned fits.

enum class Centre { Zero, Middle };

/// What rounding leaves of the standard error where the Chebyshev polynomial of this degree on the interval is fitted
/// to its own values at `count` equally spaced points.
inline double standardErrorOfChebyshev(double lower, double upper, int count, Long degree, Centre at) {
  const double centre = at == Centre::Zero ? 0.0 : (upper + lower) / 2;
  Dimension model = problem({{"x", spaced(lower, upper, count), degree, centre}});
  tabulate(model, [&](double x, double, double, double) {
    const long double z = (2.0L * x - lower - upper) / (upper - lower);
    long double before = 1, value = z;
    for (Long n = 1; n < degree; ++n) before = std::exchange(value, 2 * z * value - before);
    return static_cast<double>(value);
  });
  compute(model);
  return model.StdErr;
}

/// The correlation coefficient of nine values 0.1 on [0, 1], fitted with degree 2 about the middle.
inline double correlationOfEqualValues() {
  Dimension model = problem({{"x", spaced(0, 1, 9), 2, 0.5}});
  tabulate(model, [](double, double, double, double) { return 0.1; });
  compute(model);
  return model.CorrCoef;
}

/// A number with two significant digits.
inline std::string shortText(double value) {
  char text[32];
  std::snprintf(text, sizeof text, "%.1E", value);
  return numberText(Val(text));
}

/// The cell for a standard error of data between -1 and 1.
inline std::string errorCell(double standardError) {
  return "<td>" + shortText(standardError) + (standardError > 0.1 ? ": worthless</td>" : "</td>");
}

/// The rows of the page's two tables that hold numbers.
inline std::vector<std::string> rowsOfIllConditionedFits() {
  std::vector<std::string> rows;
  for (const auto& [lower, upper] : {std::pair{-1, 1}, {0, 2}, {2, 4}, {9, 11}})
    rows.push_back("<tr><td>[" + std::to_string(lower) + ", " + std::to_string(upper) + "]</td>" +
                   errorCell(standardErrorOfChebyshev(lower, upper, 21, 6, Centre::Zero)) +
                   errorCell(standardErrorOfChebyshev(lower, upper, 21, 6, Centre::Middle)) + "</tr>");
  std::string degrees = "<tr><th>degree, with center * and 41 values</th>", errors = "<tr><th>standard error</th>";
  for (const Long degree : {3, 5, 9, 12, 15, 18, 20}) {
    degrees += "<td>" + numberText(degree) + "</td>";
    errors += errorCell(standardErrorOfChebyshev(-1, 1, 41, degree, Centre::Middle));
  }
  rows.insert(rows.end(), {degrees + "</tr>", errors + "</tr>"});
  return rows;
}

}  // namespace tavimor::test
