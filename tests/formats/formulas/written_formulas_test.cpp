#include <gmock/gmock.h>

#include "exported_program.h"
#include "random_fits.h"

namespace tavimor {
namespace {

using testing::HasSubstr;

TEST(ExportFormats, AreFoundByName) {
  for (const ExportFormat& format : exportFormats()) EXPECT_EQ(exportFormat(format.name), &format);
  EXPECT_EQ(exportFormat("cobol"), nullptr);
}

// 2 + 3 (p - 0.5), and a second variable that does not count.
Dimension slope() {
  Dimension model = test::problem({{"p", {0, 0.5, 1}, 1, 0.5}, {"T °C", {-10, 30}, 1, -20}});
  test::compute(model);
  const double coefficients[] = {2, 3, 0, -1e-7};
  std::copy(std::begin(coefficients), std::end(coefficients), model.Coef.data());
  return model;
}

std::string written(const char* format, const FormulaOptions& options) {
  const Dimension model = slope();
  return test::exported(format, model, model, options);
}

TEST(WrittenText, StatesTheVariablesTheStatisticsAndTheTerms) {
  EXPECT_EQ(written("text", {.name = "slope", .within = {}}),
            "slope(p, T_C): a polynomial fitted by least squares\n"
            "\n"
            "Variables:\n"
            "  p: from 0 to 1, centre 0.5, degree 1\n"
            "  T_C is \"T °C\": from -10 to 30, centre -20, degree 1\n"
            "Outside these intervals the formula is no estimate: nothing was fitted there.\n"
            "\n"
            "Statistics of the fit, on a grid of 6 points:\n"
            "  correlation coefficient       1\n"
            "  standard error of estimate    0\n"
            "  sum of squared residuals      0\n"
            "  average of the given values   0\n"
            "  average of the estimates      0\n"
            "\n"
            "slope(p, T_C) =\n"
            "    2\n"
            "  + 3*(p - 0.5)\n"
            "  - 1e-07*(p - 0.5)*(T_C + 20)\n");
}

TEST(WrittenText, OfARoundedFormulaStatesBoundAndLargestDifference) {
  EXPECT_THAT(
      written("text", {.name = "slope", .within = 0.01}),
      testing::AllOf(HasSubstr("stays within 0.01 of the fit:\n"), HasSubstr("is it farther off than 2.5E-06,\n"),
                     HasSubstr("at a grid point by 2.5E-06 at most; 1 terms are left out.\n"),
                     testing::EndsWith("slope(p, T_C) =\n    2\n  + 3*(p - 0.5)\n")));
}

TEST(WrittenText, TellsRightDigitsWhereTheyAreKnown) {
  FormulaOptions options{.name = "slope", .within = {}};
  options.figures = {"", 12, {15, 13, std::nullopt, 12}, {}};
  EXPECT_THAT(written("text", options),
              HasSubstr("\nRight digits of the coefficients, of 15: 12 in the worst that is more than noise\n"
                        "In each of them, - for noise:\n  15, 13, -, 12\n"));
  options.figures = {"", 15, {15, 15, 15, 15}, {}};
  EXPECT_THAT(written("text", options), HasSubstr("of 15: 15 in the worst that is more than noise\n\nslope("));
}

TEST(WrittenText, TellsThatTheDataDetermineNoFit) {
  FormulaOptions options{.name = "slope", .within = {}};
  options.figures.doubt = "variable \"/*\n\" has 2 different values";
  EXPECT_THAT(written("text", options),
              HasSubstr("\nThe data determine no fit: variable \"/ *?\" has 2 different values.\n"));
}

TEST(WrittenLaTeX, BreaksTheEquationAtItsTermsAndListsThem) {
  EXPECT_THAT(written("latex", {.name = "slope", .within = {}}),
              testing::AllOf(HasSubstr("\\mathrm{slope}(p, \\mathrm{T\\_C}) ={}& 2 + 3\\,(p - 0.5) \\\\\n"
                                       "    & - 1\\times 10^{-7}\\,(p - 0.5)\\,(\\mathrm{T\\_C} + 20)\n"),
                             HasSubstr("  1 & 1 & $-1\\times 10^{-7}$ \\\\\n")));
}

TEST(WrittenCode, GivesNaNOutsideWhereThatIsAskedFor) {
  const test::TemporaryFolder folder;
  const FormulaOptions options{.name = "slope", .within = {}, .checks = 0, .outside = Outside::NotANumber};
  test::writeBytes(folder / "slope.py", written("python", options) + "print(slope(1.0, 30.0), slope(1.01, 0.0))\n");
  EXPECT_THAT(test::runIn(folder, "python3 slope.py").out, testing::MatchesRegex("3.4999975.* nan\n"));
  test::writeBytes(folder / "slope.c", written("c", options) +
                                           "#include <stdio.h>\nint main(void) { printf(\"%d %d\\n\", "
                                           "isnan(slope(1.0, 30.0)), isnan(slope(0.0, -10.5)) != 0); return 0; }\n");
  EXPECT_EQ(test::runIn(folder, TAVIMOR_CXX " -x c slope.c -o slope && ./slope").out, "0 1\n");
}

TEST(WrittenCode, IsTheSameEveryTime) {
  for (const ExportFormat& format : exportFormats()) {
    if (format.kind == ExportKind::Bytes) continue;
    const FormulaOptions options{.name = "f", .within = {}};
    EXPECT_EQ(written(format.name.data(), options), written(format.name.data(), options)) << format.name;
  }
}

TEST(FormulaName, IsTheLastPartOfThePathWithoutItsEnding) {
  EXPECT_EQ(formulaNameOf("/tmp/my.fits/heat-index.2"), "heat-index");
  EXPECT_EQ(formulaNameOf("ozone"), "ozone");
}

}  // namespace
}  // namespace tavimor
