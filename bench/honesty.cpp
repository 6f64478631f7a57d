// Compares the second opinion with exact rational arithmetic and prints the table of docs/numerics.md.
//   bench-honesty [PROBLEMS]
#include <cstdio>
#include <cstdlib>

#include "support/honesty.h"

int main(int argc, char** argv) {
  using namespace tavimor;
  const int count = argc > 1 ? std::atoi(argv[1]) : test::kProblemsOfThePage;
  std::mt19937_64 random(test::kSeedOfThePage);
  test::Honesty all;
  for (int n = 0; n < count; ++n) all.add(test::judged(test::randomJudgedProblem(random)));
  std::printf("\n| the second opinion beside exact arithmetic | measured |\n| --- | --- |\n");
  for (const auto& [name, figures] : test::rowsOf(all)) std::printf("| %s | %s |\n", name.c_str(), figures.c_str());
  const bool honest = all.wrongVerdicts == 0 && all.mostClaimedTooHigh <= 0.0 && all.mostErrorOverBound < -3.5;
  return honest ? 0 : 1;
}
