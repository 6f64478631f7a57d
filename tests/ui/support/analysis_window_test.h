#pragma once

#include <QTableView>

#include "ui/analysis/frmAnalysis.h"
#include "ui/support/main_window_test.h"

namespace tavimor {

/// The main window with the analysis window beside it.
class AnalysisWindowTest : public MainWindowTest {
 protected:
  ~AnalysisWindowTest() override;

  /// Stores the problem, opens it and the analysis window, and goes back to the main window.
  void openWithAnalysis(const Dimension& problem);
  void openAnalysis();

  /// Presses Compute and waits for what the analysis window says of it.
  void compute();
  void waitForVerdict();

  static frmAnalysis& analysis();
  static std::string verdict();

  /// A page by its name; brings it to front.
  static QWidget& page(const QString& name);

  /// A control of the analysis window.
  template <class T>
  static T& inAnalysis(const QString& name) {
    T* control = analysis().findChild<T*>(name);
    if (control == nullptr) throw std::runtime_error("no control " + name.toStdString());
    return *control;
  }

  static QTableView& coefficients() { return inAnalysis<QTableView>("tblCoefficients"); }
  static std::string cell(const QTableView& table, int row, int column);
  static std::string note(const QString& page);

  /// Clicks a button of the analysis window.
  static void press(const QString& name);
  using MainWindowTest::press;
};

/// x from 1000 to 1001 with 11 values, degree 4 and its centre at 0, where a fit loses its digits; a function that is
/// no polynomial.
Dimension badlyCentred();

}  // namespace tavimor
