#include "ui/analysis/coefficient_table.h"

#include <QApplication>
#include <QPalette>

#include "analysis/figure_texts.h"
#include "analysis/right_digits.h"
#include "model/grid_indices.h"
#include "report/term_text.h"
#include "runtime/number_text.h"

namespace tavimor {

namespace {

QString textOfNumber(double number) { return QString::fromStdString(numberText(number)); }

}  // namespace

void CoefficientTable::showAnalysis(const std::shared_ptr<const Analysis>& analysis) {
  analysis_ = analysis;
  powers_.clear();
  if (analysis->listed.hasListed() || analysis->opinion.isExact())
    forEachIndex(analysis->problem().Degree, [this](const PerVariable<Long>& power) { powers_.push_back(power); });
  const QString level = textOfNumber(100 * analysis->level) + QStringLiteral(" %");
  showResults(
      powers_.size(),
      {{QStringLiteral("Term"), QStringLiteral("What the coefficient multiplies")},
       {QStringLiteral("Listed"), QStringLiteral("The coefficient as it is listed")},
       {QStringLiteral("Right digits"), QStringLiteral("How many digits of the listed one are right, never too many")},
       {QStringLiteral("Precise"), QStringLiteral("The exact least-squares solution, in the digits that are known")},
       {QStringLiteral("Std error"), QStringLiteral("Standard error of the coefficient")},
       {QStringLiteral("t"), QStringLiteral("Precise coefficient / standard error")},
       {QStringLiteral("p"), QStringLiteral("The chance of such a t or a larger one if the coefficient were 0")},
       {level + QStringLiteral(" from"), QStringLiteral("Lower end of the interval of the coefficient")},
       {QStringLiteral("to"), QStringLiteral("Upper end of the interval of the coefficient")}});
}

bool CoefficientTable::isNoise(std::size_t n) const {
  return analysis_->opinion.isExact() && analysis_->opinion.precise.coefficients[n].isNoise();
}

std::optional<double> CoefficientTable::ofInference(std::size_t n, int column) const {
  const CoefficientInference& inference = analysis_->inference[n];
  switch (column) {
    case StandardError: return inference.standardError;
    case T: return inference.t;
    case P: return inference.p;
    case Low: return inference.low;
    default: return inference.high;
  }
}

std::optional<double> CoefficientTable::number(std::size_t n, int column) const {
  const bool isListed = analysis_->listed.hasListed(), isExact = analysis_->opinion.isExact();
  switch (column) {
    case Term: return static_cast<double>(n);
    case Listed: return isListed ? std::optional(analysis_->listed.fit.Coef.data()[n]) : std::nullopt;
    case RightDigits:
      return isExact && isListed && !isNoise(n) ? std::optional(analysis_->digits.coefficients[n]) : std::nullopt;
    case Precise:
      return isExact ? std::optional(analysis_->opinion.precise.coefficients[n].solution.rounded()) : std::nullopt;
    default: return isExact ? ofInference(n, column) : std::nullopt;
  }
}

QString CoefficientTable::text(std::size_t n, int column) const {
  if (column == Term) return QString::fromStdString(plainTermText(analysis_->problem(), powers_[n]));
  if (column == RightDigits && isNoise(n)) return QStringLiteral("noise");
  const std::optional<double> figure = number(n, column);
  if (!figure) return QStringLiteral("-");
  switch (column) {
    case Listed: return textOfNumber(*figure);
    case RightDigits: return QString::number(shownDigits(*figure));
    case Precise: return QString::fromStdString(preciseText(analysis_->opinion.precise.coefficients[n].solution));
    default: return QString::fromStdString(shortText(figure));
  }
}

QVariant CoefficientTable::cell(std::size_t result, int column, int role) const {
  switch (role) {
    case Qt::DisplayRole: return text(result, column);
    case kSortRole: {
      const std::optional<double> figure = number(result, column);
      return figure ? QVariant(*figure) : QVariant();
    }
    case Qt::ToolTipRole: return column == Term ? QVariant(text(result, column)) : QVariant();
    case Qt::ForegroundRole:
      return isNoise(result) ? QVariant(QApplication::palette().color(QPalette::Disabled, QPalette::Text)) : QVariant();
    case Qt::TextAlignmentRole:
      return column == Term ? QVariant(Qt::AlignLeft | Qt::AlignVCenter) : QVariant(Qt::AlignRight | Qt::AlignVCenter);
    default: return {};
  }
}

}  // namespace tavimor
