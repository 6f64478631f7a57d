#pragma once

#include "ui/analysis/analysis_table.h"

namespace tavimor {

/// The coefficients of an analysis, a row each, in the order of the listing.
class CoefficientTable : public ResultTable {
  Q_OBJECT

 public:
  enum { Term, Listed, RightDigits, Precise, StandardError, T, P, Low, High };

  using ResultTable::ResultTable;

  /// Without an exact solution there is what is listed alone.
  void showAnalysis(const std::shared_ptr<const Analysis>& analysis);

 protected:
  QVariant cell(std::size_t result, int column, int role) const override;

 private:
  QString text(std::size_t n, int column) const;
  std::optional<double> number(std::size_t n, int column) const;
  std::optional<double> ofInference(std::size_t n, int column) const;
  bool isNoise(std::size_t n) const;

  std::shared_ptr<const Analysis> analysis_;
  std::vector<PerVariable<Long>> powers_;
};

}  // namespace tavimor
