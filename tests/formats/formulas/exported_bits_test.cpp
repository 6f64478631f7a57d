// The exported C, C++ and Python of random fits give the bits of the Evaluations window.
#include <gmock/gmock.h>

#include <bit>
#include <cmath>
#include <sstream>

#include "engine/polynomial.h"
#include "exported_program.h"
#include "random_fits.h"

namespace tavimor {
namespace {

using test::exported;

constexpr int kFits = 24;
constexpr int kPoints = 40;

// Points within and far outside the intervals.
struct Evaluation {
  int fit;
  PerVariable<double> x;
  double value;
};

class ExportedBits : public testing::Test {
 protected:
  ExportedBits() {
    while (std::ssize(fits) < kFits)
      if (Dimension model = random.next(); hasFormula(model)) fits.push_back(std::move(model));
    for (int n = 0; n < kFits * kPoints; ++n) {
      const Dimension& model = fits[n % kFits];
      Evaluation evaluation{n % kFits, {}, 0.0};
      for (Long k = 0; k <= model.LastVar; ++k) evaluation.x[k] = 20.0 * random.number();
      evaluation.value = valueAt(model.Coef, {}, offsetsFrom(model.Centre, evaluation.x));
      evaluations.push_back(evaluation);
    }
  }

  static std::string functionName(int n) { return "fit" + std::to_string(n); }

  std::string functions(const std::string& format) const {
    std::string code;
    for (int n = 0; n < kFits; ++n)
      code += exported(format, fits[n], fits[n], {.name = functionName(n), .within = {}, .checks = 0}) + "\n";
    return code;
  }

  // The evaluations, each within what a language prints a double's bits with.
  std::string calls(const std::string& before, const std::string& behind) const {
    std::ostringstream code;
    code.precision(17);
    for (const Evaluation& evaluation : evaluations) {
      code << before << functionName(evaluation.fit) << '(' << evaluation.x[0];
      for (Long k = 1; k <= fits[evaluation.fit].LastVar; ++k) code << ", " << evaluation.x[k];
      code << ')' << behind << '\n';
    }
    return code.str();
  }

  void expectBits(const std::string& printed) const {
    std::istringstream lines(printed);
    int differences = 0;
    for (const Evaluation& evaluation : evaluations) {
      std::string line;
      ASSERT_TRUE(std::getline(lines, line));
      const double value = std::strtod(line.c_str(), nullptr);
      if (std::bit_cast<std::uint64_t>(value) != std::bit_cast<std::uint64_t>(evaluation.value)) ++differences;
    }
    EXPECT_EQ(differences, 0);
  }

  void expectBitsOf(const std::string& file, const std::string& code, const std::string& command) const {
    test::writeBytes(folder / file, code);
    const test::Outcome outcome = test::runIn(folder, command);
    ASSERT_EQ(outcome.exitCode, 0) << outcome.err;
    expectBits(outcome.out);
  }

  test::TemporaryFolder folder;
  test::RandomFits random{20261121};
  std::vector<Dimension> fits;
  std::vector<Evaluation> evaluations;
};

TEST_F(ExportedBits, OfCAreThoseOfTheEvaluationsWindow) {
  expectBitsOf(
      "all.c",
      functions("c") + "#include <stdio.h>\nint main(void) {\n" + calls("printf(\"%a\\n\", ", ");") + "return 0; }\n",
      TAVIMOR_CXX " -x c -std=c99 -Wall -Wextra -Wpedantic -Werror -O1 -ffp-contract=off all.c -o all && ./all");
}

TEST_F(ExportedBits, OfCPlusPlusAreThoseOfTheEvaluationsWindow) {
  expectBitsOf("all.cpp",
               functions("c++") + "#include <cstdio>\nint main() {\n" + calls("std::printf(\"%a\\n\", ", ");") + "}\n",
               TAVIMOR_CXX
               " -std=c++11 -Wall -Wextra -Wpedantic -Werror -O1 -ffp-contract=off all.cpp -o all && ./all");
}

TEST_F(ExportedBits, OfPythonAreThoseOfTheEvaluationsWindow) {
  expectBitsOf("all.py", functions("python") + calls("print((", ").hex())"), "python3 all.py");
}

}  // namespace
}  // namespace tavimor
