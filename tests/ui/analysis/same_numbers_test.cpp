#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <random>

#include "analysis/figure_texts.h"
#include "cli/analysis.h"
#include "runtime/number_text.h"
#include "support/stored.h"
#include "support/stored_problems.h"
#include "ui/analysis/coefficient_table.h"
#include "ui/analysis/statistic_table.h"
#include "ui/support/analysis_window_test.h"

namespace tavimor {
namespace {

using Json = nlohmann::json;

constexpr int kProblems = 12;

double typed(double value) { return std::stod(numberText(value)); }

// One to three variables with random limits, centres and degrees, and a function that no polynomial is.
Dimension randomFittedProblem(std::mt19937_64& random) {
  const auto below = [&](int most) { return static_cast<Long>(random() % static_cast<unsigned>(most)); };
  std::uniform_real_distribution<double> anywhere(-10, 10);
  std::vector<Long> counts;
  for (Long k = 0; k <= below(3); ++k) counts.push_back(5 + below(3));
  Dimension model = test::gridProblem(counts);
  for (Long k = 0; k <= model.LastVar; ++k) {
    model.LowerLimit[k] = typed(anywhere(random));
    model.UpperLimit[k] = model.LowerLimit[k] + 1 + below(9);
    model.Centre[k] = typed(anywhere(random));
    model.Degree[k] = 1 + below(3);
  }
  for (std::size_t n = 0; n < model.F.size(); ++n) model.F.data()[n] = typed(anywhere(random));
  return model;
}

std::string numberOrDash(const Json& number) { return number.is_null() ? "-" : textOf(number.get<double>()); }

std::string shortOrDash(const Json& number) { return number.is_null() ? "-" : shortText(number.get<double>()); }

class SameNumbers : public AnalysisWindowTest {
 protected:
  static void expectCoefficients(const Json& wanted) {
    const QTableView& table = coefficients();
    ASSERT_EQ(table.model()->rowCount(), std::ssize(wanted));
    for (int row = 0; row < std::ssize(wanted); ++row) {
      const Json& one = wanted[static_cast<std::size_t>(row)];
      EXPECT_EQ(cell(table, row, CoefficientTable::Term), one["term"].get<std::string>());
      EXPECT_EQ(cell(table, row, CoefficientTable::Listed), numberOrDash(one["listed"]));
      EXPECT_EQ(cell(table, row, CoefficientTable::RightDigits),
                one["noise"].get<bool>() ? "noise" : std::to_string(one["digits"].get<int>()));
      EXPECT_EQ(cell(table, row, CoefficientTable::Precise),
                preciseText({Pair(one["precise"].get<double>()), one["bound"].get<double>()}));
      EXPECT_EQ(cell(table, row, CoefficientTable::StandardError), shortOrDash(one["standard_error"]));
      EXPECT_EQ(cell(table, row, CoefficientTable::T), shortOrDash(one["t"]));
      EXPECT_EQ(cell(table, row, CoefficientTable::P), shortOrDash(one["p"]));
      EXPECT_EQ(cell(table, row, CoefficientTable::Low), shortOrDash(one["low"]));
      EXPECT_EQ(cell(table, row, CoefficientTable::High), shortOrDash(one["high"]));
    }
  }

  static std::string valueOf(const QTableView& table, int column, const std::string& name, int wanted) {
    for (int row = 0; row < table.model()->rowCount(); ++row)
      if (cell(table, row, column) == name) return cell(table, row, wanted);
    return "no row " + name;
  }

  static void expectStatistics(const Json& figures, const Json& digits) {
    page("pagStatistics");
    const auto& table = inAnalysis<QTableView>("tblStatistics");
    const auto textbook = [&](const char* name) {
      return valueOf(table, StatisticTable::Figure, name, StatisticTable::Value);
    };
    EXPECT_EQ(textbook("RSS"), numberOrDash(figures["rss"]));
    EXPECT_EQ(textbook("standard deviation s"), numberOrDash(figures["s"]));
    EXPECT_EQ(textbook("R^2"), numberOrDash(figures["r_squared"]));
    EXPECT_EQ(textbook("adjusted R^2"), numberOrDash(figures["adjusted_r_squared"]));
    EXPECT_EQ(textbook("F"), numberOrDash(figures["f"]));
    EXPECT_EQ(textbook("p of F"), numberOrDash(figures["f_p"]));
    EXPECT_EQ(textbook("PRESS"), numberOrDash(figures["press"]));
    EXPECT_EQ(textbook("predicted R^2"), numberOrDash(figures["predicted_r_squared"]));
    EXPECT_EQ(textbook("AICc"), numberOrDash(figures["aicc"]));
    EXPECT_EQ(textbook("BIC"), numberOrDash(figures["bic"]));
    EXPECT_EQ(textbook("RMS residual"), numberOrDash(figures["rms"]));
    EXPECT_EQ(textbook("largest residual").rfind(numberOrDash(figures["largest_residual"]), 0), 0U);
    EXPECT_EQ(valueOf(table, StatisticTable::ListedFigure, "SUM (RESIDUALS)^2", StatisticTable::RightDigits),
              std::to_string(digits["sum_of_squared_residuals"].get<int>()));
  }
};

TEST_F(SameNumbers, AsTheCommandLinePrintsForRandomProblems) {
  std::mt19937_64 random(14);
  for (int n = 0; n < kProblems; ++n) {
    SCOPED_TRACE(n);
    const Dimension problem = randomFittedProblem(random);
    test::store(problem, file("problem"));
    window->unload();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    model = Dimension();
    window = new frmTavimor(model);
    window->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window));
    open("problem");
    openAnalysis();
    compute();
    const auto wanted = tavimor::analyse(listedProblem(file("problem"), CommandOptions()));
    const Json json = Json::parse(analysisJson("problem", *wanted));
    ASSERT_EQ(json["verdict"], "exact");
    page("pagCoefficients");
    expectCoefficients(json["coefficients"]);
    expectStatistics(json["statistics"], json["listed_digits"]);
  }
}

}  // namespace
}  // namespace tavimor
