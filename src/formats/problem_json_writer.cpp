#include <cmath>
#include <nlohmann/json.hpp>

#include "formats/problem_json.h"
#include "model/value_lists.h"
#include "runtime/number_text.h"

namespace tavimor {

namespace {

using nlohmann::json;

std::string textOf(const json& value) { return value.dump(-1, ' ', false, json::error_handler_t::replace); }

// JSON has no words for what is no number: they stand as texts, in the form that problem files use.
std::string numberOf(double value) { return std::isfinite(value) ? textOf(value) : textOf(json(numberText(value))); }

std::string lineOf(const double* first, std::size_t count, std::size_t stride) {
  std::string line = "[";
  for (std::size_t i = 0; i < count; ++i) line += (i == 0 ? "" : ", ") + numberOf(first[i * stride]);
  return line + "]";
}

// The part of a table that begins at `first`, from axis k on; a line for each run along the last declared axis.
std::string nested(const Table4& table, Long k, Long lastAxis, const double* first, const std::string& indent) {
  if (k == lastAxis) return lineOf(first, table.extent(k), table.stride(k));
  std::string text = "[\n";
  for (std::size_t i = 0; i < table.extent(k); ++i) {
    const std::string inner = nested(table, k + 1, lastAxis, first + i * table.stride(k), indent + "  ");
    text += indent + "  " + inner + (i + 1 < table.extent(k) ? ",\n" : "\n");
  }
  return text + indent + "]";
}

std::string variableOf(const Problem& problem, Long k) {
  const auto& values = valueList(problem, k);
  return R"({"name": )" + textOf(problem.VarName[k]) + R"(, "lower": )" + numberOf(problem.LowerLimit[k]) +
         R"(, "upper": )" + numberOf(problem.UpperLimit[k]) + R"(, "centre": )" + numberOf(problem.Centre[k]) +
         R"(, "degree": )" + textOf(problem.Degree[k]) + R"(, "equallySpaced": )" + textOf(problem.EquallySpaced[k]) +
         R"(, "periodFlag": )" + textOf(problem.PeriodFlag[k]) + R"(, "period": )" + numberOf(problem.Period[k]) +
         ",\n     \"values\": " + lineOf(values.data(), values.size(), 1) + "}";
}

std::string fitOf(const Problem& problem, const Fit& fit) {
  if (!fit.FitDone) return "null";
  return "{\n    \"coefficients\": " + nested(fit.Coef, 0, problem.LastVar, fit.Coef.data(), "    ") +
         ",\n    \"correlationCoefficient\": " + numberOf(fit.CorrCoef) +
         ",\n    \"standardError\": " + numberOf(fit.StdErr) +
         ",\n    \"sumOfSquaredResiduals\": " + numberOf(fit.SumRes2) +
         ",\n    \"averageGiven\": " + numberOf(fit.AvgGiven) +
         ",\n    \"averageEstimated\": " + numberOf(fit.AvgEstimated) + "\n  }";
}

}  // namespace

std::string problemJson(const Problem& problem, const Fit& fit) {
  std::string text = "{\n  \"format\": \"tavimor-problem\",\n  \"version\": 1,\n  \"variables\": [\n";
  for (Long k = 0; k <= problem.LastVar; ++k)
    text += "    " + variableOf(problem, k) + (k < problem.LastVar ? ",\n" : "\n");
  text += "  ],\n  \"function\": " + nested(problem.F, 0, problem.LastVar, problem.F.data(), "  ");
  return text + ",\n  \"fit\": " + fitOf(problem, fit) + "\n}\n";
}

}  // namespace tavimor
