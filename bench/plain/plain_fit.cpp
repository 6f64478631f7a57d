#include "plain_fit.h"

#include <cmath>
#include <utility>

namespace plain {

namespace {

using Matrix = std::vector<std::vector<double>>;

std::size_t at(const long last[4], long i0, long i1, long i2, long i3) {
  return i0 + (last[0] + 1) * (i1 + (last[1] + 1) * (i2 + (last[2] + 1) * i3));
}

std::size_t size(const long last[4]) { return (last[0] + 1) * (last[1] + 1) * (last[2] + 1) * (last[3] + 1); }

double& along(std::vector<double>& table, const long last[4], int k, long onAxis, const long other[4]) {
  long i[4] = {other[0], other[1], other[2], other[3]};
  i[k] = onAxis;
  return table[at(last, i[0], i[1], i[2], i[3])];
}

// Calls `body` for every combination of the indices of the axes other than k, axis 3 outermost.
template <class Body>
void forOtherAxes(const long last[4], int k, Body body) {
  long end[4] = {last[0], last[1], last[2], last[3]};
  end[k] = 0;
  long i[4];
  for (i[3] = 0; i[3] <= end[3]; ++i[3])
    for (i[2] = 0; i[2] <= end[2]; ++i[2])
      for (i[1] = 0; i[1] <= end[1]; ++i[1])
        for (i[0] = 0; i[0] <= end[0]; ++i[0]) body(i);
}

Matrix normalMatrix(const Problem& problem, int k) {
  const long degree = problem.degree[k];
  Matrix gram(degree + 1, std::vector<double>(degree + 1, 0.0));
  for (long i = 0; i <= problem.lastPoint[k]; ++i) {
    const double d = problem.x[k][i] - problem.centre[k];
    double p = 1.0;
    for (long a = 0; a <= degree; ++a) {
      double q = p * p;
      for (long b = a; b <= degree; ++b) {
        gram[a][b] += q;
        gram[b][a] = gram[a][b];
        q = q * d;
      }
      p = p * d;
    }
  }
  return gram;
}

void eliminate(Problem& problem, Matrix& gram, int k) {
  const long degree = problem.degree[k];
  std::vector<double>& coef = problem.coef;
  for (long col = 0; col < degree; ++col) {
    double max = std::fabs(gram[col][col]);
    long piv = col;
    for (long r = col + 1; r <= degree; ++r)
      if (std::fabs(gram[r][col]) > max) {
        max = std::fabs(gram[r][col]);
        piv = r;
      }
    if (max == 0.0) continue;
    if (piv != col) {
      for (long j = 0; j <= degree; ++j) std::swap(gram[col][j], gram[piv][j]);
      forOtherAxes(problem.degree, k, [&](const long* i) {
        std::swap(along(coef, problem.degree, k, col, i), along(coef, problem.degree, k, piv, i));
      });
    }
    for (long r = col + 1; r <= degree; ++r) {
      const double f = gram[r][col] / gram[col][col];
      for (long j = col; j <= degree; ++j) gram[r][j] = gram[r][j] - f * gram[col][j];
      forOtherAxes(problem.degree, k, [&](const long* i) {
        double& target = along(coef, problem.degree, k, r, i);
        target = target - f * along(coef, problem.degree, k, col, i);
      });
    }
  }
}

bool backSubstitute(Problem& problem, const Matrix& gram, int k) {
  for (long r = problem.degree[k]; r >= 0; --r) {
    if (gram[r][r] == 0.0) return false;
    forOtherAxes(problem.degree, k, [&](const long* i) {
      double s = 0.0;
      for (long j = r + 1; j <= problem.degree[k]; ++j)
        s = s + gram[r][j] * along(problem.coef, problem.degree, k, j, i);
      double& y = along(problem.coef, problem.degree, k, r, i);
      y = (y - s) / gram[r][r];
    });
  }
  return true;
}

void fitOnGrid(Problem& problem) {
  const long* last = problem.lastPoint;
  problem.fitGrid.assign(size(last), 0.0);
  for (long j3 = 0; j3 <= problem.degree[3]; ++j3)
    for (long j2 = 0; j2 <= problem.degree[2]; ++j2)
      for (long j1 = 0; j1 <= problem.degree[1]; ++j1)
        for (long j0 = 0; j0 <= problem.degree[0]; ++j0)
          problem.fitGrid[at(last, j0, j1, j2, j3)] = problem.coef[at(problem.degree, j0, j1, j2, j3)];
  for (int k = static_cast<int>(problem.lastVar); k >= 0; --k) {
    const std::size_t terms = problem.degree[k] + 1;
    std::vector<double> basis((last[k] + 1) * terms), row(last[k] + 1);
    for (long i = 0; i <= last[k]; ++i) {
      double t = 1.0;
      for (long a = 0; a <= problem.degree[k]; ++a) {
        basis[i * terms + a] = t;
        t = t * (problem.x[k][i] - problem.centre[k]);
      }
    }
    forOtherAxes(last, k, [&](const long* other) {
      for (long i = 0; i <= last[k]; ++i) {
        double s = 0.0;
        for (long a = 0; a <= problem.degree[k]; ++a)
          s = s + along(problem.fitGrid, last, k, a, other) * basis[i * terms + a];
        row[i] = s;
      }
      for (long i = 0; i <= last[k]; ++i) along(problem.fitGrid, last, k, i, other) = row[i];
    });
  }
}

void statistics(Problem& problem, double sumGiven) {
  const double n = static_cast<double>(problem.f.size());
  double sumEstimated = 0, sumSqRegression = 0, sumRes2 = 0, sumSqTotal = 0;
  problem.avgGiven = sumGiven / n;
  for (long i0 = 0; i0 <= problem.lastPoint[0]; ++i0)
    for (long i1 = 0; i1 <= problem.lastPoint[1]; ++i1)
      for (long i2 = 0; i2 <= problem.lastPoint[2]; ++i2)
        for (long i3 = 0; i3 <= problem.lastPoint[3]; ++i3) {
          const double e = problem.fitGrid[at(problem.lastPoint, i0, i1, i2, i3)];
          const double f = problem.f[at(problem.lastPoint, i0, i1, i2, i3)];
          sumEstimated += e;
          sumSqRegression += (problem.avgGiven - e) * (problem.avgGiven - e);
          sumRes2 += (f - e) * (f - e);
          sumSqTotal += (problem.avgGiven - f) * (problem.avgGiven - f);
        }
  problem.avgEstimated = sumEstimated / n;
  problem.sumRes2 = sumRes2;
  problem.corrCoef = sumSqTotal == 0.0 ? 1.0 : std::sqrt(sumSqRegression / sumSqTotal);
  problem.stdErr = std::sqrt(sumRes2 / (n - 2));
}

}  // namespace

void accumulateRightHandSide(Problem& problem) {
  problem.coef.assign(size(problem.degree), 0.0);
  for (long i3 = 0; i3 <= problem.lastPoint[3]; ++i3) {
    const double d3 = problem.x[3][i3] - problem.centre[3];
    for (long i2 = 0; i2 <= problem.lastPoint[2]; ++i2) {
      const double d2 = problem.x[2][i2] - problem.centre[2];
      for (long i1 = 0; i1 <= problem.lastPoint[1]; ++i1) {
        const double d1 = problem.x[1][i1] - problem.centre[1];
        for (long i0 = 0; i0 <= problem.lastPoint[0]; ++i0) {
          const double d0 = problem.x[0][i0] - problem.centre[0];
          double p3 = problem.f[at(problem.lastPoint, i0, i1, i2, i3)];
          double* sum = problem.coef.data();
          for (long j3 = 0; j3 <= problem.degree[3]; ++j3) {
            double p2 = p3;
            for (long j2 = 0; j2 <= problem.degree[2]; ++j2) {
              double p1 = p2;
              for (long j1 = 0; j1 <= problem.degree[1]; ++j1) {
                double p0 = p1;
                for (long j0 = 0; j0 <= problem.degree[0]; ++j0) {
                  *sum++ += p0;
                  p0 = p0 * d0;
                }
                p1 = p1 * d1;
              }
              p2 = p2 * d2;
            }
            p3 = p3 * d3;
          }
        }
      }
    }
  }
}

void fit(Problem& problem) {
  problem.fitDone = false;
  problem.singular = false;
  accumulateRightHandSide(problem);
  for (int k = 0; k <= problem.lastVar; ++k) {
    Matrix gram = normalMatrix(problem, k);
    eliminate(problem, gram, k);
    if (!backSubstitute(problem, gram, k)) {
      problem.singular = true;
      return;
    }
  }
  double sumGiven = 0.0;
  for (const double f : problem.f) sumGiven += f;
  fitOnGrid(problem);
  statistics(problem, sumGiven);
  problem.fitDone = true;
}

}  // namespace plain
