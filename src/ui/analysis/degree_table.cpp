#include "ui/analysis/degree_table.h"

#include <QFont>

#include "analysis/figure_texts.h"
#include "analysis/right_digits.h"

namespace tavimor {

void DegreeTable::showDegrees(const std::shared_ptr<const Analysis>& analysis,
                              const std::shared_ptr<const DegreeSearch>& degrees, Combinations shown) {
  analysis_ = analysis;
  degrees_ = degrees;
  shown_.clear();
  for (std::size_t n = 0; n < degrees_->combinations.size(); ++n) {
    const DegreeCombination& one = degrees_->combinations[n];
    const bool isCurrent = one.degrees == analysis_->problem().Degree;
    if (shown == Combinations::All || !one.beaten || one.recommended || isCurrent) shown_.push_back(n);
  }
  showResults(
      shown_.size(),
      {{QStringLiteral("Degrees"), QStringLiteral("Of the variables, in their order")},
       {QStringLiteral("P"), QStringLiteral("Number of coefficients")},
       {QStringLiteral("RSS"), QStringLiteral("Sum of the squared residuals")},
       {QStringLiteral("s"), QStringLiteral("sqrt(RSS / (N - P))")},
       {QStringLiteral("Adjusted R^2"), QStringLiteral("1 - (RSS / (N - P)) / (TSS / (N - 1))")},
       {QStringLiteral("GCV"), QStringLiteral("N RSS / (N - P)^2")},
       {QStringLiteral("BIC"), QStringLiteral("N ln(RSS / N) + (P + 1) ln N; the least is best")},
       {QStringLiteral("PRESS"), QStringLiteral("Sum of (residual / (1 - leverage))^2, of the ten with the least BIC")},
       {QStringLiteral("Digits"), QStringLiteral("Right digits of the worst coefficient, foretold")},
       {QString(), {}}});
}

const DegreeCombination& DegreeTable::combinationAt(int row) const {
  return degrees_->combinations.at(shown_.at(resultAt(row)));
}

std::optional<double> DegreeTable::press(std::size_t n) const {
  return n < degrees_->press.size() ? degrees_->press[n] : std::nullopt;
}

QString DegreeTable::remark(std::size_t n) const {
  const DegreeCombination& one = degrees_->combinations[n];
  QStringList remarks;
  if (one.degrees == analysis_->problem().Degree) remarks << QStringLiteral("now");
  if (one.recommended) remarks << QStringLiteral("recommended");
  return remarks.join(QStringLiteral(", "));
}

std::optional<double> DegreeTable::number(std::size_t n, int column) const {
  const DegreeCombination& one = degrees_->combinations[n];
  switch (column) {
    case Degrees: return static_cast<double>(n);
    case Terms: return static_cast<double>(one.statistics.terms);
    case Rss: return one.statistics.rss;
    case S: return one.statistics.s;
    case AdjustedRSquared: return one.statistics.adjustedRSquared;
    case Gcv: return one.statistics.gcv;
    case Bic: return one.statistics.bic;
    case Press: return press(n);
    case Digits: return one.predictedDigits;
    default: return one.recommended ? 0.0 : 1.0;
  }
}

QString DegreeTable::text(std::size_t n, int column) const {
  const DegreeCombination& one = degrees_->combinations[n];
  switch (column) {
    case Degrees: return QString::fromStdString(degreesText(analysis_->problem(), one.degrees));
    case Terms: return QString::number(one.statistics.terms);
    case Rss:
      return one.statistics.residualsAreZero ? QStringLiteral("0")
                                             : QString::fromStdString(shortText(one.statistics.rss));
    case Digits: return QString::number(shownDigits(one.predictedDigits));
    case Remark: return remark(n);
    default: return QString::fromStdString(shortText(number(n, column)));
  }
}

QVariant DegreeTable::cell(std::size_t result, int column, int role) const {
  const std::size_t n = shown_.at(result);
  switch (role) {
    case Qt::DisplayRole: return text(n, column);
    case kSortRole: {
      const std::optional<double> figure = number(n, column);
      return figure ? QVariant(*figure) : QVariant();
    }
    case Qt::FontRole: {
      QFont bold;
      bold.setBold(true);
      return degrees_->combinations[n].recommended ? QVariant(bold) : QVariant();
    }
    case Qt::TextAlignmentRole:
      return column == Degrees || column == Remark ? QVariant(Qt::AlignLeft | Qt::AlignVCenter)
                                                   : QVariant(Qt::AlignRight | Qt::AlignVCenter);
    default: return {};
  }
}

}  // namespace tavimor
