#include "ui/analysis/analysis_link.h"

namespace tavimor {

void AnalysisLink::selectPoint(const std::optional<PerVariable<Long>>& index) {
  if (selected_ == index) return;
  selected_ = index;
  emit pointSelected();
}

}  // namespace tavimor
