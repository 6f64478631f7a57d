// Measures what a step of a slider costs: the section or the map made anew and drawn, on the toolkit's platform without
// a display. Prints medians of processor time.
//   bench-pictures
#include <qcustomplot.h>

#include <QApplication>
#include <cstdio>
#include <ctime>
#include <vector>

#include "engine/fit.h"
#include "measure.h"
#include "problem_sizes.h"
#include "ui/pictures/drawings.h"

namespace {

using namespace tavimor;
using namespace tavimor::bench;

constexpr int kSteps = 21;

// The processor time of this thread: other programs do not count.
double milliseconds() {
  timespec now{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
  return 1e3 * static_cast<double>(now.tv_sec) + 1e-6 * static_cast<double>(now.tv_nsec);
}

template <class Step>
double medianOf(Step step) {
  std::vector<double> times;
  for (int n = 0; n < kSteps; ++n) {
    const double before = milliseconds();
    step(n);
    times.push_back(milliseconds() - before);
  }
  return median(times);
}

std::shared_ptr<const ShownFit> fitOf(const ProblemSize& size) {
  ListedProblem listed{makeProblem(size), {}, {}, ListedFrom::FitMadeNow};
  for (SpecFields& fields : listed.fields) fields.txtExpansion = "0.25";
  listed.fit = fit(listed.problem).fit;
  return shownFit(analyse(std::move(listed)));
}

// The last variable moves through its values.
PerVariable<double> heldAt(const Problem& problem, int step) {
  PerVariable<double> at{};
  for (Long k = 0; k <= problem.LastVar; ++k) at[k] = gridValues(problem, k)[step % (problem.LastPoint[k] + 1)];
  return at;
}

void measure(const ProblemSize& size) {
  const auto fit = fitOf(size);
  const Problem& problem = fit->problem();
  Picture picture(QStringLiteral("picture"));
  picture.resize(800, 500);
  picture.grab();
  const double section = medianOf([&](int step) {
    SectionChoice choice;
    choice.at = heldAt(problem, step);
    showSection(picture, fit, sectionOf(*fit, choice));
    picture.plot().replot(QCustomPlot::rpImmediateRefresh);
  });
  std::printf("%-3s section %6.1f ms", size.name, section);
  for (const MapOf of : {MapOf::Fit, MapOf::Given, MapOf::Residual}) {
    const double map = medianOf([&](int step) {
      const MapChoice choice{of, 0, 1, heldAt(problem, step)};
      showMap(picture, fit, choice, mapOf(*fit, choice));
      picture.plot().replot(QCustomPlot::rpImmediateRefresh);
    });
    std::printf("   map of the %s %6.1f ms", mapQuantity(of).c_str(), map);
  }
  std::printf("\n");
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  for (const ProblemSize& size : kProblemSizes)
    if (size.variables > 1) measure(size);
}
