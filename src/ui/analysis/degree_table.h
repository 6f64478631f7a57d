#pragma once

#include "analysis/degree_search.h"
#include "ui/analysis/analysis_table.h"

namespace tavimor {

/// Which combinations of degrees are shown: all, or those that no other one beats both in terms and in s.
enum class Combinations { Unbeaten, All };

/// A map of degrees, a row for each combination.
class DegreeTable : public ResultTable {
  Q_OBJECT

 public:
  enum { Degrees, Terms, Rss, S, AdjustedRSquared, Gcv, Bic, Press, Digits, Remark };

  using ResultTable::ResultTable;

  void showDegrees(const std::shared_ptr<const Analysis>& analysis, const std::shared_ptr<const DegreeSearch>& degrees,
                   Combinations shown);

  const DegreeCombination& combinationAt(int row) const;

 protected:
  QVariant cell(std::size_t result, int column, int role) const override;

 private:
  QString text(std::size_t n, int column) const;
  std::optional<double> number(std::size_t n, int column) const;
  std::optional<double> press(std::size_t n) const;
  QString remark(std::size_t n) const;

  std::shared_ptr<const Analysis> analysis_;
  std::shared_ptr<const DegreeSearch> degrees_;
  std::vector<std::size_t> shown_;  // the numbers of those that are shown
};

}  // namespace tavimor
