#include "ui/support/analysis_window_test.h"

#include <QTabWidget>
#include <cmath>

#include "support/stored.h"
#include "support/stored_problems.h"
#include "ui/controls/remembered.h"

namespace tavimor {

AnalysisWindowTest::~AnalysisWindowTest() {
  if (window != nullptr) window->unload();
  Remembered().clear();
}

frmAnalysis& AnalysisWindowTest::analysis() {
  auto* shown = Form::openForm<frmAnalysis>();
  if (shown == nullptr) throw std::runtime_error("no analysis window");
  return *shown;
}

void AnalysisWindowTest::openAnalysis() {
  press(Qt::Key_F9);
  EXPECT_TRUE(QTest::qWaitForWindowActive(&analysis()));
  activate();
}

void AnalysisWindowTest::openWithAnalysis(const Dimension& problem) {
  test::store(problem, file("problem"));
  open("problem");
  openAnalysis();
}

void AnalysisWindowTest::compute() {
  click("cmdCompute");
  waitForVerdict();
}

void AnalysisWindowTest::waitForVerdict() {
  constexpr int kPatience = 30000;
  EXPECT_TRUE(QTest::qWaitFor([] { return !verdict().starts_with("Looking"); }, kPatience));
}

std::string AnalysisWindowTest::verdict() { return inAnalysis<QLabel>("lblVerdict").text().toStdString(); }

QWidget& AnalysisWindowTest::page(const QString& name) {
  auto& wanted = inAnalysis<QWidget>(name);
  inAnalysis<QTabWidget>("tabPages").setCurrentWidget(&wanted);
  return wanted;
}

std::string AnalysisWindowTest::cell(const QTableView& table, int row, int column) {
  return table.model()->index(row, column).data().toString().toStdString();
}

std::string AnalysisWindowTest::note(const QString& name) {
  return page(name).findChild<QLabel*>("lblNote")->text().toStdString();
}

void AnalysisWindowTest::press(const QString& name) {
  QTest::mouseClick(&inAnalysis<QPushButton>(name), Qt::LeftButton);
}

Dimension badlyCentred() {
  Dimension model = test::gridProblem({11});
  model.LowerLimit[0] = 1000;
  model.UpperLimit[0] = 1001;
  model.Degree[0] = 4;
  for (Long i = 0; i <= 10; ++i) {
    model.X0[i] = 1000 + 0.1 * i;
    model.F(i, 0, 0, 0) = std::exp(0.1 * i);
  }
  return model;
}

}  // namespace tavimor
