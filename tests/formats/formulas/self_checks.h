#pragma once

#include <gmock/gmock.h>

#include "exported_program.h"
#include "formats/formulas/number_literal.h"
#include "random_fits.h"

namespace tavimor::test {

/// A language whose formulas check themselves, and how. The function is called "f", as its file.
struct CheckedLanguage {
  const char* name;
  const char* format;
  const char* file;
  const char* check;
  std::string (*literal)(double);
};

inline std::string nameOf(const testing::TestParamInfo<CheckedLanguage>& language) { return language.param.name; }

/// The checks that exported programs carry: they agree with the fit to the last bit, and they can fail.
class SelfChecks : public testing::TestWithParam<CheckedLanguage> {
 protected:
  static constexpr double kCoefficient = 2.6251220703125;  // stands nowhere else in the text before the coefficients

  static Dimension plane() {
    Dimension model = problem({{"p", {0, 0.5, 1}, 1, 0.5}, {"T", {10, 30}, 1, 20}});
    tabulate(model, [](double p, double T, double, double) { return 2.6 + 3 * (p - 0.5) + 0.15 * (T - 20); });
    compute(model);
    model.Coef(0, 0, 0, 0) = kCoefficient;
    return model;
  }

  static std::string exportedPlane(Outside outside = Outside::Extrapolated) {
    const Dimension model = plane();
    return exported(GetParam().format, model, model, {.name = "f", .within = {}, .outside = outside});
  }

  static std::string withWrongCoefficient(std::string code) {
    const std::string right = GetParam().literal(kCoefficient);
    return code.replace(code.find(right), right.size(), GetParam().literal(kCoefficient + 0.001));
  }

  Outcome check(const std::string& code) const {
    writeBytes(folder / GetParam().file, code);
    return runIn(folder, GetParam().check);
  }

  void expectNoDifference(const std::string& code) const {
    const Outcome outcome = check(code);
    EXPECT_EQ(outcome.exitCode, 0) << outcome.err;
    EXPECT_THAT(outcome.out + outcome.err,
                testing::ContainsRegex("50 points, largest difference  ?0(.000E[+]00)?, beyond rounding: 0"));
  }

  TemporaryFolder folder;
};

TEST_P(SelfChecks, FindNoDifferenceAtAll) { expectNoDifference(exportedPlane()); }

TEST_P(SelfChecks, FindNoneWhereNaNStandsOutside) { expectNoDifference(exportedPlane(Outside::NotANumber)); }

TEST_P(SelfChecks, FindNoneInRandomFits) {
  RandomFits random(20261121);
  for (int n = 0; n < 2; ++n) {
    const Dimension model = random.next();
    if (hasFormula(model)) expectNoDifference(exported(GetParam().format, model, model, {.name = "f", .within = {}}));
  }
}

TEST_P(SelfChecks, NoticeAWrongCoefficient) {
  const Outcome outcome = check(withWrongCoefficient(exportedPlane()));
  EXPECT_NE(outcome.exitCode, 0);
  EXPECT_THAT(outcome.out + outcome.err, testing::HasSubstr("beyond rounding: 50"));
}

}  // namespace tavimor::test
