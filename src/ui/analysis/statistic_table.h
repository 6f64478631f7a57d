#pragma once

#include <string>

#include "ui/analysis/analysis_table.h"

namespace tavimor {

/// The figures of the listing beside those of the textbook which answer the same question, then the textbook's others.
class StatisticTable : public ResultTable {
  Q_OBJECT

 public:
  enum { ListedFigure, Listed, RightDigits, Figure, Value, Definition };

  using ResultTable::ResultTable;

  void showAnalysis(const Analysis& analysis);

 protected:
  QVariant cell(std::size_t result, int column, int role) const override;

 private:
  struct Row {
    std::string listedFigure, listed, digits, figure, value, definition;
  };

  void addListedFigures(const Analysis& analysis);
  void addOtherFigures(const Analysis& analysis);

  std::vector<Row> rows_;
};

}  // namespace tavimor
