#include "ui/analysis/statistic_table.h"

#include <algorithm>
#include <array>

#include "analysis/figure_texts.h"
#include "analysis/statistic_texts.h"

namespace tavimor {

namespace {

constexpr StatisticText kMean{"mean", "mean", "sum of the given values / N"};

const StatisticText& textbookText(std::string_view key) {
  const auto texts = statisticTexts();
  const auto found = std::find_if(texts.begin(), texts.end(), [&](const StatisticText& one) { return one.key == key; });
  return found == texts.end() ? kMean : *found;
}

bool isBesideAListedFigure(std::string_view key) {
  const auto texts = listedFigureTexts();
  return std::any_of(texts.begin(), texts.end(), [&](const ListedFigureText& one) { return one.key == key; });
}

using Figures = std::array<std::optional<double>, 5>;  // in the order of the listing

Figures listedFigures(const Fit& fit) {
  return {fit.CorrCoef, fit.StdErr, fit.SumRes2, fit.AvgGiven, fit.AvgEstimated};
}

Figures digitsOfFigures(const ListedDigits& digits) {
  return {digits.correlation, digits.standardError, digits.residualSum, digits.averageGiven, digits.averageEstimated};
}

std::string definitionText(const ListedFigureText& listed, const StatisticText& textbook) {
  std::string text = std::string("listed: ") + listed.definition;
  if (textbook.definition != std::string_view(listed.definition))
    text += std::string("; ") + textbook.name + ": " + textbook.definition;
  return text + '.' + (*listed.difference == '\0' ? "" : std::string(" ") + listed.difference);
}

}  // namespace

void StatisticTable::showAnalysis(const Analysis& analysis) {
  rows_.clear();
  if (analysis.listed.hasListed()) addListedFigures(analysis);
  if (analysis.opinion.isExact()) addOtherFigures(analysis);
  showResults(rows_.size(), {{QStringLiteral("Listed figure"), {}},
                             {QStringLiteral("Listed"), {}},
                             {QStringLiteral("Right digits"), {}},
                             {QStringLiteral("Textbook"), {}},
                             {QStringLiteral("Value"), QStringLiteral("Of the precise solution")},
                             {QStringLiteral("Definition, and why they differ"), {}}});
}

void StatisticTable::addListedFigures(const Analysis& analysis) {
  const Figures listed = listedFigures(analysis.listed.fit), digits = digitsOfFigures(analysis.digits);
  std::size_t n = 0;
  for (const ListedFigureText& text : listedFigureTexts()) {
    const StatisticText& textbook = textbookText(text.key);
    Row row{text.name, textOf(listed[n]), "-", textbook.name, "-", definitionText(text, textbook)};
    if (analysis.opinion.isExact()) {
      row.digits = digitsText(digits[n]);
      row.value = figureText(analysis, text.key);
    }
    rows_.push_back(std::move(row));
    ++n;
  }
}

void StatisticTable::addOtherFigures(const Analysis& analysis) {
  for (const StatisticText& text : statisticTexts())
    if (!analysis.listed.hasListed() || !isBesideAListedFigure(text.key))
      rows_.push_back({"", "", "", text.name, figureText(analysis, text.key), text.definition});
}

QVariant StatisticTable::cell(std::size_t result, int column, int role) const {
  const Row& row = rows_.at(result);
  const bool isNumber = column == Listed || column == RightDigits || column == Value;
  if (role == Qt::TextAlignmentRole) return QVariant((isNumber ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignTop);
  if (role != Qt::DisplayRole) return {};
  const std::string* texts[] = {&row.listedFigure, &row.listed, &row.digits, &row.figure, &row.value, &row.definition};
  return QString::fromStdString(*texts[column]);
}

}  // namespace tavimor
