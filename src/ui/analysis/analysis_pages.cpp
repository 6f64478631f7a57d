#include "ui/analysis/analysis_pages.h"

#include "ui/analysis/coefficients_page.h"
#include "ui/analysis/degrees_page.h"
#include "ui/analysis/statistics_page.h"
#ifdef TAVIMOR_PICTURES
#include "ui/analysis/drawn_degrees.h"
#include "ui/analysis/map_page.h"
#include "ui/analysis/residuals_page.h"
#include "ui/analysis/section_page.h"
#endif

namespace tavimor {

std::vector<AnalysisPage*> makeAnalysisPages(AnalysisLink& link) {
#ifdef TAVIMOR_PICTURES
  const auto fits = std::make_shared<ShownFits>();
  return {new CoefficientsPage(link),    new StatisticsPage,
          new SectionPage(link, fits),   new MapPage(link, fits),
          new ResidualsPage(link, fits), new DegreesPage(link, new DrawnDegrees)};
#else
  return {new CoefficientsPage(link), new StatisticsPage, new DegreesPage(link)};
#endif
}

}  // namespace tavimor
