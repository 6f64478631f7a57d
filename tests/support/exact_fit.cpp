#include "support/exact_fit.h"

#include <cmath>
#include <cstdlib>
#include <limits>

#include "model/value_lists.h"
#include "runtime/number_text.h"

namespace tavimor::test {

namespace {

mpq_class powerOfTen(long exponent) {
  mpz_class power;
  mpz_ui_pow_ui(power.get_mpz_t(), 10, static_cast<unsigned long>(std::labs(exponent)));
  return exponent >= 0 ? mpq_class(power) : mpq_class(1) / power;
}

// A text as numberText writes it: "-1.25", "1.5E-07".
mpq_class decimal(const std::string& text) {
  const std::size_t mark = text.find('E');
  long exponent = mark == std::string::npos ? 0 : std::atol(text.c_str() + mark + 1);
  std::string digits = text.substr(0, mark);
  if (const std::size_t point = digits.find('.'); point != std::string::npos) {
    exponent -= static_cast<long>(digits.size() - point - 1);
    digits.erase(point, 1);
  }
  mpq_class value = mpq_class(mpz_class(digits, 10)) * powerOfTen(exponent);
  value.canonicalize();
  return value;
}

// Whole numbers times one unit, so that sums need no common denominators.
struct Scaled {
  std::vector<mpz_class> numbers;
  mpz_class denominator = 1;
};

Scaled scaledToWhole(const std::vector<mpq_class>& values) {
  Scaled scaled;
  for (const mpq_class& value : values)
    mpz_lcm(scaled.denominator.get_mpz_t(), scaled.denominator.get_mpz_t(), value.get_den().get_mpz_t());
  for (const mpq_class& value : values)
    scaled.numbers.push_back(value.get_num() * (scaled.denominator / value.get_den()));
  return scaled;
}

using Matrix = std::vector<std::vector<mpq_class>>;

// Gauss and Jordan; false where the matrix is singular.
bool invert(Matrix matrix, Matrix& inverse) {
  const std::size_t m = matrix.size();
  inverse.assign(m, std::vector<mpq_class>(m));
  for (std::size_t n = 0; n < m; ++n) inverse[n][n] = 1;
  for (std::size_t pivot = 0; pivot < m; ++pivot) {
    if (matrix[pivot][pivot] == 0) return false;  // of a matrix that is not negative definite
    for (std::size_t row = 0; row < m; ++row) {
      if (row == pivot) continue;
      const mpq_class factor = matrix[row][pivot] / matrix[pivot][pivot];
      if (factor == 0) continue;
      for (std::size_t column = 0; column < m; ++column) {
        matrix[row][column] -= factor * matrix[pivot][column];
        inverse[row][column] -= factor * inverse[pivot][column];
      }
    }
  }
  for (std::size_t row = 0; row < m; ++row)
    for (std::size_t column = 0; column < m; ++column) inverse[row][column] /= matrix[row][row];
  return true;
}

// Replaces axis k of a table, the first index fastest, by sums with the rows of a matrix.
template <class Table, class Element>
Table along(const Table& table, PerVariable<std::size_t>& extent, int k, std::size_t results, Element element) {
  std::size_t inner = 1, outer = 1;
  for (int axis = 0; axis < kMaxVariables; ++axis) (axis < k ? inner : outer) *= axis == k ? 1 : extent[axis];
  Table result(inner * results * outer);
  for (std::size_t o = 0; o < outer; ++o)
    for (std::size_t r = 0; r < results; ++r)
      for (std::size_t i = 0; i < extent[k]; ++i)
        for (std::size_t n = 0; n < inner; ++n)
          result[(o * results + r) * inner + n] += element(r, i) * table[(o * extent[k] + i) * inner + n];
  extent[k] = results;
  return result;
}

}  // namespace

mpq_class exactValue(double value, Reading reading) {
  constexpr double least = 1e-250, most = 1e250;
  const double size = std::fabs(value);
  const std::string text = numberText(value);
  if (reading == Reading::AsTyped && size >= least && size <= most && std::strtod(text.c_str(), nullptr) == value)
    return decimal(text);
  return mpq_class(value);
}

ExactData exactData(const Problem& problem, Reading reading, const PerVariable<CentreFrom>& centres) {
  ExactData data;
  for (Long k = 0; k < kMaxVariables; ++k) {
    const mpq_class lower = exactValue(problem.LowerLimit[k], reading),
                    upper = exactValue(problem.UpperLimit[k], reading);
    const Long last = problem.LastPoint[k];
    const bool spaced = reading == Reading::AsTyped && problem.EquallySpaced[k] && last > 0;
    for (Long i = 0; i <= last; ++i)
      data.values[k].push_back(spaced ? mpq_class(lower + (upper - lower) * i / last)
                                      : exactValue(valueOf(problem, k, i), reading));
    data.centre[k] =
        centres[k] == CentreFrom::Middle ? mpq_class((lower + upper) / 2) : exactValue(problem.Centre[k], reading);
    data.terms[k] = static_cast<std::size_t>(problem.Degree[k]) + 1;
  }
  for (std::size_t n = 0; n < problem.F.size(); ++n) data.function.push_back(exactValue(problem.F.data()[n], reading));
  return data;
}

std::optional<ExactFit> exactFit(const ExactData& data) {
  const Scaled function = scaledToWhole(data.function);
  std::vector<mpz_class> sums = function.numbers;
  PerVariable<std::size_t> extent{};
  for (int k = 0; k < kMaxVariables; ++k) extent[k] = data.values[k].size();
  PerVariable<Matrix> inverse;
  PerVariable<mpz_class> unit;
  for (int k = 0; k < kMaxVariables; ++k) {
    std::vector<mpq_class> deviations;
    for (const mpq_class& value : data.values[k]) deviations.push_back(value - data.centre[k]);
    const Scaled d = scaledToWhole(deviations);
    unit[k] = d.denominator;
    const std::size_t m = data.terms[k], n = d.numbers.size();
    std::vector<std::vector<mpz_class>> powers(n, std::vector<mpz_class>(2 * m - 1, 1));
    for (std::size_t i = 0; i < n; ++i)
      for (std::size_t a = 1; a < powers[i].size(); ++a) powers[i][a] = powers[i][a - 1] * d.numbers[i];
    Matrix gram(m, std::vector<mpq_class>(m));
    for (std::size_t a = 0; a < m; ++a)
      for (std::size_t b = 0; b < m; ++b) {
        mpz_class sum;
        for (std::size_t i = 0; i < n; ++i) sum += powers[i][a + b];
        gram[a][b] = sum;
      }
    if (!invert(gram, inverse[k])) return std::nullopt;
    sums = along(sums, extent, k, m, [&](std::size_t a, std::size_t i) { return powers[i][a]; });
  }
  std::vector<mpq_class> coefficients(sums.begin(), sums.end());
  for (int k = 0; k < kMaxVariables; ++k)
    coefficients =
        along(coefficients, extent, k, data.terms[k], [&](std::size_t a, std::size_t b) { return inverse[k][a][b]; });
  ExactFit fit;
  for (const mpq_class& value : data.function) {
    fit.sum += value;
    fit.sumOfSquares += value * value;
  }
  mpq_class explained;
  for (std::size_t n = 0; n < sums.size(); ++n) explained += coefficients[n] * sums[n];
  explained /= mpq_class(function.denominator * function.denominator);
  fit.residualSum = fit.sumOfSquares - explained;
  for (std::size_t n = 0; n < coefficients.size(); ++n) {
    mpq_class value = coefficients[n] / function.denominator;
    std::size_t rest = n;
    for (int k = 0; k < kMaxVariables; ++k) {
      for (std::size_t a = rest % data.terms[k]; a > 0; --a) value *= unit[k];
      rest /= data.terms[k];
    }
    fit.coefficients.push_back(value);
  }
  return fit;
}

mpq_class exactly(const Pair& pair) { return mpq_class(pair.high) + mpq_class(pair.low); }

double log10Of(const mpq_class& value) {
  if (value == 0) return -std::numeric_limits<double>::infinity();
  long numeratorExponent = 0, denominatorExponent = 0;
  const double numerator = mpz_get_d_2exp(&numeratorExponent, value.get_num().get_mpz_t());
  const double denominator = mpz_get_d_2exp(&denominatorExponent, value.get_den().get_mpz_t());
  return std::log10(std::fabs(numerator) / denominator) +
         static_cast<double>(numeratorExponent - denominatorExponent) * std::log10(2.0);
}

double distance(const Pair& value, const mpq_class& exact) { return mpq_class(abs(exactly(value) - exact)).get_d(); }

double trueDigits(double value, const mpq_class& exact) {
  if (exact == 0) return value == 0.0 ? std::numeric_limits<double>::infinity() : 0.0;
  const mpq_class error = (mpq_class(value) - exact) / exact;
  return -log10Of(error);
}

}  // namespace tavimor::test
