// The exports that are no code: "./dev test-exports" has other programs read them.
#include <gmock/gmock.h>

#include <cmath>
#include <sstream>

#include "engine/polynomial.h"
#include "exported_program.h"
#include "random_fits.h"
#include "runtime/val.h"

namespace tavimor {
namespace {

using test::Outcome;

class ExportedDocuments : public testing::Test {
 protected:
  ExportedDocuments() {
    for (test::RandomFits random(20261121); std::ssize(fits) < 8;)
      if (Dimension model = random.next(); hasFormula(model)) fits.push_back(std::move(model));
  }

  static std::string exported(const char* format, const Dimension& model) {
    return test::exported(format, model, model, {.name = "f", .within = {}});
  }

  Outcome run(const std::string& file, const std::string& content, const std::string& command) const {
    test::writeBytes(folder / file, content);
    return test::runIn(folder, command);
  }

  Outcome typeset(const std::string& content) const {
    return run("f.tex", content, "chktex -q -n 1 -n 3 -n 24 -n 44 f.tex");
  }

  std::vector<std::vector<std::string>> sheet(int number) const {
    std::istringstream lines(test::readBytes(folder / ("f.csv." + std::to_string(number))));
    std::vector<std::vector<std::string>> rows;
    for (std::string line; std::getline(lines, line);) {
      rows.emplace_back();
      std::istringstream cells(line);
      for (std::string cell; std::getline(cells, cell, ',');) rows.back().push_back(cell);
    }
    return rows;
  }

  test::TemporaryFolder folder;
  std::vector<Dimension> fits;
};

TEST_F(ExportedDocuments, AreLaTeXWithoutAFault) {
  for (const Dimension& model : fits) {
    const Outcome outcome = typeset(exported("latex", model));
    EXPECT_EQ(outcome.exitCode, 0) << outcome.out;
  }
}

TEST_F(ExportedDocuments, AreLaTeXWhoseFaultsWouldBeFound) {
  std::string content = exported("latex", fits[0]);
  content.replace(content.find("\\end{align*}"), 12, "");
  EXPECT_NE(typeset(content).exitCode, 0);
}

TEST_F(ExportedDocuments, ArePlotsThatGnuplotDraws) {
  for (const Dimension& model : fits) {
    const Outcome outcome =
        run("f.gp", exported("gnuplot", model), "gnuplot -e 'set terminal dumb; set output \"f.txt\"' f.gp");
    EXPECT_EQ(outcome.exitCode, 0) << outcome.err;
    EXPECT_EQ(outcome.err, "");
    EXPECT_THAT(test::readBytes(folder / "f.txt"),
                testing::AllOf(testing::HasSubstr("fit"), testing::HasSubstr("given")));
  }
}

// The workbook computes at another point than the one that it was written with.
TEST_F(ExportedDocuments, AreWorkbooksWithALiveFormula) {
  for (const Dimension& model : fits) {
    const double x = model.X0[0] + 0.125;
    const Outcome outcome = run("f.xlsx", exported("xlsx", model),
                                "LC_ALL=C.UTF-8 ssconvert --recalc --set B2=" + std::to_string(x) + " -S f.xlsx f.csv");
    ASSERT_EQ(outcome.exitCode, 0) << outcome.err;
    const auto rows = sheet(0);
    PerVariable<double> point{};
    for (Long k = 0; k <= model.LastVar; ++k) point[k] = Val(rows[k + 1][1]);
    EXPECT_NEAR(point[0], x, 1e-6);
    const double value = valueAt(model.Coef, {}, offsetsFrom(model.Centre, point));
    EXPECT_NEAR(Val(rows[model.LastVar + 2][1]), value, 1e-9 * (1 + std::abs(value)));
  }
}

TEST_F(ExportedDocuments, AreWorkbooksThatEstimateEveryGridPoint) {
  for (const Dimension& model : fits) {
    const Outcome outcome = run("f.xlsx", exported("xlsx", model), "LC_ALL=C.UTF-8 ssconvert --recalc -S f.xlsx f.csv");
    ASSERT_EQ(outcome.exitCode, 0) << outcome.err;
    const auto rows = sheet(3);
    ASSERT_GT(rows.size(), model.F.size());
    const std::size_t given = model.LastVar + 1;
    for (std::size_t row = 1; row <= model.F.size(); ++row) {
      PerVariable<double> point{};
      for (Long k = 0; k <= model.LastVar; ++k) point[k] = Val(rows[row][k]);
      const double value = valueAt(model.Coef, {}, offsetsFrom(model.Centre, point));
      EXPECT_NEAR(Val(rows[row][given + 1]), value, 1e-6);
      EXPECT_NEAR(Val(rows[row][given + 2]), Val(rows[row][given]) - value, 1e-6);
    }
  }
}

TEST_F(ExportedDocuments, AreWorkbooksWithDigitsAndStandardErrorsWhereTheyAreKnown) {
  const Dimension& model = fits[0];
  FormulaOptions options{.name = "f", .within = {}};
  const std::size_t count = model.Coef.size();
  options.figures = {"", 12, std::vector<std::optional<Long>>(count, 12),
                     std::vector<std::optional<double>>(count, 0.5)};
  options.figures.digits[0] = std::nullopt;
  options.figures.standardErrors[0] = std::nullopt;
  const Outcome outcome =
      run("f.xlsx", test::exported("xlsx", model, model, options), "LC_ALL=C.UTF-8 ssconvert -S f.xlsx f.csv");
  ASSERT_EQ(outcome.exitCode, 0) << outcome.err;
  const auto rows = sheet(1);
  const std::size_t digits = model.LastVar + 2;
  ASSERT_EQ(rows.size(), count + 1);
  EXPECT_EQ(rows[0][digits], "\"right digits\"");
  EXPECT_EQ(rows[0][digits + 1], "\"standard error\"");
  EXPECT_EQ(rows[1][digits], "noise");
  for (std::size_t n = 1; n < count; ++n) {
    EXPECT_EQ(rows[n + 1][digits], "12");
    EXPECT_EQ(rows[n + 1][digits + 1], "0.5");
  }
}

TEST_F(ExportedDocuments, AreTheSameWorkbookEveryTime) {
  EXPECT_EQ(exported("xlsx", fits[0]), exported("xlsx", fits[0]));
}

}  // namespace
}  // namespace tavimor
