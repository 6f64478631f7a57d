// Compares the second opinion with exact rational arithmetic and prints the table of docs/numerics.md.
//   bench-honesty [PROBLEMS]
#include <cstdio>
#include <cstdlib>

#include "support/honesty.h"

int main(int argc, char** argv) {
  using namespace tavimor;
  constexpr int problems = 10000;
  const int count = argc > 1 ? std::atoi(argv[1]) : problems;
  std::mt19937_64 random(20261121);
  test::Honesty all;
  for (int n = 0; n < count; ++n) all.add(test::judged(test::randomJudgedProblem(random)));
  std::printf("\nThe second opinion and exact arithmetic, %zu random problems:\n\n", all.problems);
  std::printf("| coefficients compared, thereof noise | %zu, %zu |\n", all.coefficients, all.noise);
  std::printf("| wrong verdicts on singularity | %zu (%zu problems are singular) |\n", all.wrongVerdicts, all.singular);
  std::printf("| not certified | %zu |\n", all.notCertified);
  std::printf("| most that claimed right digits were above the true ones | %.3g |\n", all.mostClaimedTooHigh);
  std::printf("| largest error over its bound | 10^%.1f |\n", all.mostErrorOverBound);
  std::printf("| fewest true digits of a precise coefficient that is no noise | %.1f |\n", all.fewestDigits);
  const bool honest = all.wrongVerdicts == 0 && all.mostClaimedTooHigh <= 0.0 && all.mostErrorOverBound < -3.5;
  return honest ? 0 : 1;
}
