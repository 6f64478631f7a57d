#include "ui/support/picture_pages_test.h"

#include <qcustomplot.h>

#include <QTabWidget>
#include <cmath>

#include "analysis/pictures/pictured_fits.h"
#include "support/stored_problems.h"
#include "ui/controls/control_array.h"
#include "ui/data_windows/frmFun.h"
#include "ui/pictures/panel.h"

namespace tavimor {

namespace {

Panel& panel(const Picture& picture, int number = 0) { return *picture.panels().at(static_cast<std::size_t>(number)); }

}  // namespace

void PicturePagesTest::openAt(const QString& page, const Dimension& problem) {
  openWithAnalysis(problem);
  compute();
  show(page);
}

Picture& PicturePagesTest::show(const QString& name) {
  page(name);
  EXPECT_TRUE(QTest::qWaitFor([] { return !words().empty(); })) << name.toStdString();
  analysis().activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&analysis()));
  draw();
  return picture();
}

Picture& PicturePagesTest::picture() {
  return *inAnalysis<QTabWidget>("tabPages").currentWidget()->findChild<Picture*>();
}

void PicturePagesTest::draw() { picture().plot().replot(); }

std::shared_ptr<const ShownFit> PicturePagesTest::shownFit() const { return test::pictured(model); }

void PicturePagesTest::choose(const QString& name, const QString& entry) {
  auto& list = inPage<QComboBox>(name);
  ASSERT_GE(list.findText(entry), 0) << entry.toStdString();
  list.setFocus();
  QTest::keyClick(&list, Qt::Key_Home);
  while (list.currentText() != entry) QTest::keyClick(&list, Qt::Key_Down);
  draw();
}

std::vector<std::string> PicturePagesTest::entries(const QString& name) {
  const auto& list = inPage<QComboBox>(name);
  std::vector<std::string> texts;
  for (int n = 0; n < list.count(); ++n) texts.push_back(list.itemText(n).toStdString());
  return texts;
}

void PicturePagesTest::hold(int k, const QString& value) {
  auto& field = inPage<QLineEdit>(elementName("txtAt", k));
  field.setFocus();
  field.selectAll();
  QTest::keyClicks(&field, value);
  QTest::keyClick(&field, Qt::Key_Return);
  draw();
}

double PicturePagesTest::held(int k) { return inPage<QLineEdit>(elementName("txtAt", k)).text().toDouble(); }

void PicturePagesTest::slide(int k, Qt::Key key) {
  QTest::keyClick(&inPage<QSlider>(elementName("sldAt", k)), key);
  draw();
}

void PicturePagesTest::closeFunction() {
  auto* function = Form::openForm<frmFun>();
  ASSERT_NE(function, nullptr);
  QTest::mouseClick(function->findChild<QPushButton*>(QStringLiteral("cmdExit")), Qt::LeftButton);
  ASSERT_TRUE(waitForKeyboard(*window));
}

void PicturePagesTest::press(Qt::Key key) {
  QTest::keyClick(&picture(), key);
  draw();
}

QPoint PicturePagesTest::placeOf(double x, double y, int number) {
  const Panel& shown = panel(picture(), number);
  return QPointF(shown.xAxis().coordToPixel(shown.inX(x)), shown.yAxis().coordToPixel(shown.inY(y))).toPoint();
}

void PicturePagesTest::clickAt(const QPoint& place) {
  QTest::mouseClick(&picture().plot(), Qt::LeftButton, {}, place);
  draw();
}

void PicturePagesTest::doubleClickAt(const QPoint& place) {
  QTest::mouseClick(&picture().plot(), Qt::LeftButton, {}, place);
  QTest::mouseDClick(&picture().plot(), Qt::LeftButton, {}, place);
}

void PicturePagesTest::pointAt(const QPoint& place) {
  QCustomPlot& plot = picture().plot();
  QMouseEvent event(QEvent::MouseMove, place, plot.mapToGlobal(place), Qt::NoButton, {}, {});
  QCoreApplication::sendEvent(&plot, &event);
}

void PicturePagesTest::turnWheel(int clicks) {
  constexpr int kClick = 120;  // eighths of a degree
  QCustomPlot& plot = picture().plot();
  const QPointF middle = panel(picture()).rect().center();
  QWheelEvent event(middle, plot.mapToGlobal(middle), {}, {0, kClick * clicks}, Qt::NoButton, Qt::NoModifier,
                    Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(&plot, &event);
}

std::vector<DrawnCurve> PicturePagesTest::curves(const QString& name) {
  std::vector<DrawnCurve> found;
  for (int n = 0; n < picture().plot().graphCount(); ++n) {
    const QCPGraph& graph = *picture().plot().graph(n);
    if (graph.name() != name || graph.lineStyle() == QCPGraph::lsNone) continue;
    found.emplace_back();
    for (int i = 0; i < graph.dataCount(); ++i) {
      found.back().x.push_back(graph.data()->at(i)->key);
      found.back().y.push_back(graph.data()->at(i)->value);
    }
  }
  return found;
}

int PicturePagesTest::bands() {
  int count = 0;
  for (int n = 0; n < picture().plot().graphCount(); ++n)
    count += picture().plot().graph(n)->channelFillGraph() != nullptr ? 1 : 0;
  return count;
}

int PicturePagesTest::shades() {
  int count = 0;
  for (int n = 0; n < picture().plot().itemCount(); ++n)
    count += qobject_cast<QCPItemRect*>(picture().plot().item(n)) != nullptr ? 1 : 0;
  return count;
}

std::vector<std::string> PicturePagesTest::labels() {
  std::vector<std::string> texts;
  for (int n = 0; n < picture().plot().itemCount(); ++n)
    if (const auto* text = qobject_cast<QCPItemText*>(picture().plot().item(n)))
      texts.push_back(text->text().toStdString());
  return texts;
}

DrawnCurve PicturePagesTest::marks() {
  DrawnCurve places;
  for (int n = 0; n < picture().plot().graphCount(); ++n) {
    const QCPGraph& graph = *picture().plot().graph(n);
    if (graph.scatterStyle().shape() != QCPScatterStyle::ssCircle) continue;
    places.x.push_back(graph.data()->at(0)->key);
    places.y.push_back(graph.data()->at(0)->value);
  }
  return places;
}

double PicturePagesTest::colourAt(int i, int j) {
  for (int n = 0; n < picture().plot().plottableCount(); ++n)
    if (const auto* map = qobject_cast<QCPColorMap*>(picture().plot().plottable(n))) return map->data()->cell(i, j);
  throw std::runtime_error("no colours");
}

std::pair<double, double> PicturePagesTest::rangeOfX() {
  const QCPRange range = panel(picture()).xAxis().range();
  return {range.lower, range.upper};
}

Dimension rough(const std::vector<Long>& counts) {
  Dimension model = test::gridProblem(counts);
  for (Long k = 0; k <= model.LastVar; ++k) model.Degree[k] = std::min<Long>(2, model.LastPoint[k]);
  test::tabulate(model, [](double x, double y, double z, double w) {
    return 10 * std::sin(x / 3) + y * y * std::cos(x / 2) + std::sin(3 * z) * (1 + w);
  });
  return model;
}

}  // namespace tavimor
