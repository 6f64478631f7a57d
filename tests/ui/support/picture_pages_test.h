#pragma once

#include <QComboBox>
#include <QSlider>
#include <string>
#include <vector>

#include "analysis/pictures/shown_fit.h"
#include "ui/pictures/picture.h"
#include "ui/support/analysis_window_test.h"

namespace tavimor {

/// What a picture draws, as numbers along its axes.
struct DrawnCurve {
  std::vector<double> x, y;
};

/// The pages with a picture, driven by keys and clicks.
class PicturePagesTest : public AnalysisWindowTest {
 protected:
  /// Opens a problem, fits it and brings a page to front; ends when its picture shows something.
  void openAt(const QString& page, const Dimension& problem);
  Picture& show(const QString& page);
  static Picture& picture();
  /// At once, so that places are those on the screen.
  static void draw();
  static std::string words() { return picture().accessibleDescription().toStdString(); }

  /// The fit of the model, as pictures show it.
  std::shared_ptr<const ShownFit> shownFit() const;

  /// The control of this name in the page that is in front.
  template <class T>
  static T& inPage(const QString& name) {
    T* control = picture().parentWidget()->findChild<T*>(name);
    if (control == nullptr) throw std::runtime_error("no control " + name.toStdString());
    return *control;
  }

  /// Chooses an entry of a list by keys.
  static void choose(const QString& list, const QString& entry);
  static std::vector<std::string> entries(const QString& list);

  /// Into the field of a variable that is held, ended by Enter.
  static void hold(int k, const QString& value);
  static double held(int k);
  static void slide(int k, Qt::Key key);

  /// Presses Done in the function window.
  void closeFunction();

  static void press(Qt::Key key);
  using AnalysisWindowTest::press;

  static QPoint placeOf(double x, double y, int panel = 0);
  static void clickAt(const QPoint& place);
  static void doubleClickAt(const QPoint& place);
  static void pointAt(const QPoint& place);
  static void turnWheel(int clicks);

  static std::vector<DrawnCurve> curves(const QString& name);
  static int bands();
  static int shades();
  static std::vector<std::string> labels();
  static DrawnCurve marks();
  static double colourAt(int i, int j);
  static std::pair<double, double> rangeOfX();
};

/// A function that its fit of degree 2 misses, of x from 0 to 8, y from 0 to 6 and so on.
Dimension rough(const std::vector<Long>& counts);

}  // namespace tavimor
