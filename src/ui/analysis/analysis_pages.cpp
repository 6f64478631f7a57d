#include "ui/analysis/analysis_pages.h"

#include "ui/analysis/coefficients_page.h"
#include "ui/analysis/degrees_page.h"
#include "ui/analysis/statistics_page.h"

namespace tavimor {

std::vector<AnalysisPage*> makeAnalysisPages(AnalysisLink& link) {
  return {new CoefficientsPage(link), new StatisticsPage, new DegreesPage(link)};
}

}  // namespace tavimor
