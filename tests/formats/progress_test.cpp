#include <gtest/gtest.h>

#include <algorithm>

#include "formats/problem_reader.h"
#include "formats/problem_writer.h"
#include "support/faulty_steps.h"
#include "support/pair_files.h"
#include "support/stored_problems.h"

namespace tavimor {
namespace {

class ProgressOfFiles : public test::PairTest {
 protected:
  void expectRisingShares() const {
    EXPECT_GT(shares.size(), 5u);
    EXPECT_TRUE(std::is_sorted(shares.begin(), shares.end()));
    EXPECT_GT(shares.front(), 0.0);
    EXPECT_GT(shares.back(), 0.9);
    EXPECT_LE(shares.back(), 1.0);
  }

  std::vector<double> shares;
  Progress progress = [this](double share) { shares.push_back(share); };
};

TEST_F(ProgressOfFiles, RisesWhileALargeProblemIsSavedAndRead) {
  Dimension model = test::gridProblem({400, 300});
  std::generate_n(model.F.data(), model.F.size(), [n = 0]() mutable { return 1.0 / ++n; });
  test::FaultySteps quick;
  writeProblem(model, model, path(), quick, progress);
  expectRisingShares();
  shares.clear();
  readProblem(path(), progress);
  expectRisingShares();
}

}  // namespace
}  // namespace tavimor
