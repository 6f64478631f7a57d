#pragma once

#include <algorithm>
#include <cmath>
#include <fstream>
#include <locale>
#include <map>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "model/Dimension.h"

namespace tavimor::test {

/// Coefficients by their exponents; a term that is not there has the coefficient 0.
using Coefficients = std::map<PerVariable<Long>, long double>;

/// What is known of an example table: certified or published coefficients, and certified statistics by their kind.
struct KnownResult {
  Coefficients coefficients;
  std::map<std::string, long double> statistics;
};

namespace known_detail {

inline long double number(const std::string& text) {
  std::istringstream stream(text);
  stream.imbue(std::locale::classic());
  long double value = 0;
  if (!(stream >> value)) throw std::runtime_error("no number: " + text);
  return value;
}

inline std::vector<std::string> fields(const std::string& line) {
  std::vector<std::string> result;
  std::istringstream stream(line);
  for (std::string field; std::getline(stream, field, ',');) result.push_back(field);
  return result;
}

}  // namespace known_detail

/// Reads a table's rows of examples/data/known_coefficients.csv.
inline KnownResult knownResult(const std::string& table) {
  std::ifstream file(TAVIMOR_SOURCE_DIR "/examples/data/known_coefficients.csv");
  KnownResult result;
  for (std::string line; std::getline(file, line);) {
    const std::vector<std::string> row = known_detail::fields(line);
    if (row[0] != table) continue;
    const long double value = known_detail::number(row[6]);
    if (row[2].empty())
      result.statistics[row[1]] = value;
    else
      result.coefficients[{std::stoi(row[2]), std::stoi(row[3]), std::stoi(row[4]), std::stoi(row[5])}] = value;
  }
  if (result.coefficients.empty()) throw std::runtime_error("nothing known of " + table);
  return result;
}

/// The certified standard deviations of the coefficients of a table.
inline Coefficients certifiedDeviations(const std::string& table) {
  std::ifstream file(TAVIMOR_SOURCE_DIR "/examples/data/known_coefficients.csv");
  Coefficients result;
  for (std::string line; std::getline(file, line);) {
    const std::vector<std::string> row = known_detail::fields(line);
    if (row[0] == table && row.size() > 7 && !row[2].empty())
      result[{std::stoi(row[2]), std::stoi(row[3]), std::stoi(row[4]), std::stoi(row[5])}] =
          known_detail::number(row[7]);
  }
  return result;
}

/// The same polynomial in powers of (x_k - to) instead of (x_k - from), by the binomial theorem.
inline Coefficients expandedAbout(const Coefficients& given, Long k, long double from, long double to) {
  Coefficients result;
  for (const auto& [exponents, coefficient] : given) {
    long double share = coefficient;  // binomial(i, j) * (to - from)^(i - j), from j = i down
    for (Long j = exponents[k]; j >= 0; --j) {
      PerVariable<Long> target = exponents;
      target[k] = j;
      result[target] += share;
      share *= (to - from) * j / (exponents[k] - j + 1);
    }
  }
  return result;
}

/// The log relative error: the number of decimal digits in which a value agrees with the known one, 15 at most.
inline double agreeingDigits(double value, long double known) {
  constexpr double most = 15.0;
  const long double error = std::fabs(value - known) / (known == 0 ? 1 : std::fabs(known));
  if (std::isnan(error)) return 0.0;
  return error == 0 ? most : std::clamp(static_cast<double>(-std::log10(error)), 0.0, most);
}

}  // namespace tavimor::test
