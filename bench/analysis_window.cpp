// Measures how long the main window takes to open a problem beyond reading it, how long after a click of Compute the
// analysis window shows the verdict and its page of coefficients, and how long the main window did not answer
// meanwhile; then what a step of a slider costs on the pages with pictures, in processor time, from the key to the
// screen: medians, in milliseconds.
//   bench-analysis-window FOLDER-OF-PROBLEMS
#include <QElapsedTimer>
#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QTabWidget>
#include <QTest>
#include <QThread>
#include <cstdio>

#include "formats/open_problem.h"
#include "measure.h"
#include "problem_sizes.h"
#include "ui/analysis/frmAnalysis.h"
#include "ui/controls/application.h"
#include "ui/main_window/frmTavimor.h"

namespace {

using namespace tavimor;
using namespace tavimor::bench;

constexpr int kRuns = 9;
constexpr int kSteps = 21;
constexpr unsigned long kIdle = 200;  // microseconds

struct Answer {
  double compute, verdict, longestPause;
};

double milliseconds(const QElapsedTimer& timer) { return static_cast<double>(timer.nsecsElapsed()) / 1e6; }

// From the end of the listing on.
Answer answerTo(QPushButton& cmdCompute, const QLabel& lblVerdict) {
  Answer answer{};
  QElapsedTimer timer, pause;
  timer.start();
  cmdCompute.click();
  answer.compute = milliseconds(timer);
  timer.start();
  while (lblVerdict.text().startsWith(QLatin1String("Looking"))) {
    pause.start();
    QCoreApplication::processEvents(QEventLoop::AllEvents);
    answer.longestPause = std::max(answer.longestPause, milliseconds(pause));
    QThread::usleep(kIdle);  // the processor is for the analysis, as where the toolkit waits for events
  }
  QCoreApplication::processEvents(QEventLoop::AllEvents);
  answer.verdict = milliseconds(timer);
  return answer;
}

// Until its fields are shown, less what reading alone takes: the medians.
double openingBeyondReading(frmTavimor& window, const std::string& path) {
  std::vector<double> inWindow, alone;
  QElapsedTimer timer;
  for (int run = 0; run < kRuns; ++run) {
    timer.start();
    window.openFile(path);
    QCoreApplication::processEvents(QEventLoop::AllEvents);
    inWindow.push_back(milliseconds(timer));
    timer.start();
    openProblem(path);
    alone.push_back(milliseconds(timer));
  }
  return median(inWindow) - median(alone);
}

// Until the page shows a picture.
void bringToFront(const frmAnalysis& analysis, QWidget& page, const QWidget& picture) {
  analysis.findChild<QTabWidget*>("tabPages")->setCurrentWidget(&page);
  while (picture.accessibleDescription().isEmpty()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

// A step of the slider of variable k, in processor time; nothing where the page holds no such variable.
void measureStep(const frmAnalysis& analysis, const QString& name, int k) {
  auto* page = analysis.findChild<QWidget*>("pag" + name);
  if (page == nullptr) return;  // built without pictures
  bringToFront(analysis, *page, *page->findChild<QWidget*>("pic" + name));
  auto* slider = page->findChild<QSlider*>(QStringLiteral("sldAt(%1)").arg(k));
  if (!slider->isVisible()) return;
  std::vector<double> times;
  times.reserve(kSteps);
  for (int run = 0; run < kSteps; ++run)
    times.push_back(1e3 * processorSecondsOf([&] {
                      QTest::keyClick(slider, run % 2 == 0 ? Qt::Key_Right : Qt::Key_Left);
                      QCoreApplication::processEvents();  // the drawing, which the step has queued
                      QCoreApplication::processEvents();  // its way to the screen
                    }));
  std::printf("     a step of the page %-8s %5.1f\n", qPrintable(name), median(times));
}

void measure(const std::string& name, const std::string& path) {
  Dimension model;
  auto* window = new frmTavimor(model);
  window->show();
  if (!QTest::qWaitForWindowActive(window)) throw std::runtime_error("the main window does not get the keyboard");
  const double opening = openingBeyondReading(*window, path);
  QTest::keyClick(window, Qt::Key_F9);
  auto* analysis = Form::openForm<frmAnalysis>();
  analysis->findChild<QTabWidget*>("tabPages")->setCurrentIndex(0);  // the coefficients; another page is remembered
  std::vector<double> compute, verdict, pause;
  for (int run = 0; run < kRuns; ++run) {
    const Answer answer =
        answerTo(*window->findChild<QPushButton*>("cmdCompute"), *analysis->findChild<QLabel*>("lblVerdict"));
    compute.push_back(answer.compute);
    verdict.push_back(answer.verdict);
    pause.push_back(answer.longestPause);
  }
  std::printf(
      "%-4s opening %5.1f beyond reading   Compute %7.1f   verdict and table %6.1f after it   longest pause %5.1f\n",
      name.c_str(), opening, median(compute), median(verdict), median(pause));
  measureStep(*analysis, "Section", 1);
  measureStep(*analysis, "Map", 2);
  window->unload();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const Application application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  if (argc != 2) return 2;
  for (const ProblemSize& size : kProblemSizes) measure(size.name, std::string(argv[1]) + "/" + size.name);
  return 0;
}
