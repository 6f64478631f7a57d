// The plain program: reads a problem pair with strtod, fits it and prints the listing.
//   plain-fit PROBLEM
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <string>

#include "plain_fit.h"

namespace {

std::string nextLine(std::ifstream& file) {
  std::string line;
  std::getline(file, line);
  return line;
}

double nextNumber(std::ifstream& file) { return std::strtod(nextLine(file).c_str(), nullptr); }

long nextWhole(std::ifstream& file) { return std::strtol(nextLine(file).c_str(), nullptr, 10); }

bool nextBoolean(std::ifstream& file) { return nextLine(file).starts_with("#TRUE#"); }

// "x",0,1,.5,#FALSE#,0,2
void readRecord(const std::string& line, plain::Problem& problem, long v) {
  const std::size_t nameEnd = line.find("\",");
  problem.name[v] = line.substr(1, nameEnd - 1);
  const char* numbers = line.c_str() + nameEnd + 2;
  char* rest = nullptr;
  problem.lowerLimit[v] = std::strtod(numbers, &rest);
  problem.upperLimit[v] = std::strtod(rest + 1, &rest);
  problem.centre[v] = std::strtod(rest + 1, &rest);
  problem.degree[v] = std::strtol(std::strrchr(rest, ',') + 1, nullptr, 10);
}

void readProblem(const std::string& path, plain::Problem& problem) {
  std::ifstream specification(path), values(path + ".dat");
  problem.lastVar = nextWhole(specification);
  for (long v = 0; v <= problem.lastVar; ++v) readRecord(nextLine(specification), problem, v);
  nextLine(values);
  for (long v = 0; v <= problem.lastVar; ++v) {
    problem.lastPoint[v] = nextWhole(values);
    problem.equallySpaced[v] = nextBoolean(values);
  }
  for (int d = 0; d < 4; ++d) {
    problem.x[d].assign(problem.lastPoint[d] + 1, 0.0);
    if (problem.lastPoint[d] != 0)
      for (double& value : problem.x[d]) value = nextNumber(values);
  }
  const std::size_t n0 = problem.lastPoint[0] + 1, n1 = problem.lastPoint[1] + 1, n2 = problem.lastPoint[2] + 1,
                    n3 = problem.lastPoint[3] + 1;
  problem.f.assign(n0 * n1 * n2 * n3, 0.0);
  for (std::size_t i0 = 0; i0 < n0; ++i0)
    for (std::size_t i1 = 0; i1 < n1; ++i1)
      for (std::size_t i2 = 0; i2 < n2; ++i2)
        for (std::size_t i3 = 0; i3 < n3; ++i3) problem.f[i0 + n0 * (i1 + n1 * (i2 + n2 * i3))] = nextNumber(values);
}

void spaceValues(plain::Problem& problem) {
  for (long k = 0; k <= problem.lastVar; ++k) {
    if (!problem.equallySpaced[k]) continue;
    const double step = (problem.upperLimit[k] - problem.lowerLimit[k]) / static_cast<double>(problem.lastPoint[k]);
    for (long i = 0; i <= problem.lastPoint[k]; ++i)
      problem.x[k][i] = problem.lowerLimit[k] + static_cast<double>(i) * step;
  }
}

std::string text(const char* format, double value) {
  char buffer[32];
  std::snprintf(buffer, sizeof buffer, format, value);
  return buffer;
}

std::string termText(const plain::Problem& problem, const long j[4]) {
  std::string term;
  for (long k = 0; k <= problem.lastVar; ++k) {
    if (j[k] == 0) continue;
    const double c = problem.centre[k];
    term += '*';
    term += c == 0 ? problem.name[k] : '(' + problem.name[k] + (c > 0 ? '-' : '+') + text("%.15G", std::abs(c)) + ')';
    if (j[k] > 1) term += '^' + std::to_string(j[k]);
  }
  return term;
}

void printResults(const plain::Problem& problem) {
  std::printf("              CORRELATION COEFFICIENT=%.15G\n", problem.corrCoef);
  std::printf("STANDARD ERROR OF ESTIMATE (UNBIASED)=%.15G\n", problem.stdErr);
  std::printf("                    SUM (RESIDUALS)^2=%.15G\n", problem.sumRes2);
  std::printf("           AVERAGE OF FUNCTION(GIVEN)=%.15G\n", problem.avgGiven);
  std::printf("       AVERAGE OF FUNCTION(ESTIMATED)=%.15G\n\nCOEFFICIENTS:\n", problem.avgEstimated);
  const double* coefficient = problem.coef.data();
  long j[4];
  for (j[3] = 0; j[3] <= problem.degree[3]; ++j[3], std::puts(""))
    for (j[2] = 0; j[2] <= problem.degree[2]; ++j[2], std::puts(""))
      for (j[1] = 0; j[1] <= problem.degree[1]; ++j[1], std::puts(""))
        for (j[0] = 0; j[0] <= problem.degree[0]; ++j[0]) {
          std::string line = text("%.15G", *coefficient++) + std::string(255, ' ');
          const std::string term = termText(problem, j);
          line.replace(24, term.size(), term);
          std::puts(line.c_str());
        }
}

}  // namespace

int main(int, char** argv) {
  plain::Problem problem;
  readProblem(argv[1], problem);
  spaceValues(problem);
  plain::fit(problem);
  if (problem.singular) std::puts("YIELDS SINGULAR MATRIX.");
  if (problem.fitDone) printResults(problem);
  return problem.fitDone ? 0 : 3;
}
