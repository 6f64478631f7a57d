#include "ui/controls/elided_label.h"

#include <gtest/gtest.h>

#include <QHelpEvent>
#include <QTest>
#include <QToolTip>

namespace tavimor {
namespace {

// What the label tells the mouse that rests on it.
QString toolTipOf(ElidedLabel& label) {
  label.show();
  QToolTip::hideText();
  QHelpEvent resting(QEvent::ToolTip, QPoint(2, 2), label.mapToGlobal(QPoint(2, 2)));
  QApplication::sendEvent(&label, &resting);
  return QToolTip::text();
}

TEST(ElidedLabel, AsksForNoMoreRoomThanAUsualTextNeeds) {
  const ElidedLabel usual(QStringLiteral("temperature")), wide(QString(300, QLatin1Char('x')));
  EXPECT_EQ(usual.sizeHint(), QLabel(QStringLiteral("temperature")).sizeHint());
  EXPECT_LT(wide.sizeHint().width(), 400);
  EXPECT_LT(wide.minimumSizeHint().width(), 100);
  EXPECT_EQ(wide.text().size(), 300);
}

TEST(ElidedLabel, ShowsTheWholeOfWhatIsLeftOutAsItsToolTip) {
  const QString name(300, QLatin1Char('x'));
  ElidedLabel label(name);
  label.resize(label.sizeHint());
  EXPECT_EQ(toolTipOf(label), name);
  ElidedLabel shortLabel(QStringLiteral("x"));
  shortLabel.resize(shortLabel.sizeHint());
  EXPECT_NE(toolTipOf(shortLabel), QStringLiteral("x"));
}

TEST(ElidedLabel, PaintsBothEndsOfALongText) {
  ElidedLabel longText(QString(300, QLatin1Char(' ')) + QStringLiteral("(")), onlyEnd(QStringLiteral("("));
  longText.resize(80, 20);
  const QImage picture = longText.grab().toImage();
  QRgb ground = picture.pixel(0, 0);
  bool isPainted = false;
  for (int x = picture.width() / 2; x < picture.width(); ++x)
    for (int y = 0; y < picture.height(); ++y) isPainted = isPainted || picture.pixel(x, y) != ground;
  EXPECT_TRUE(isPainted);
}

}  // namespace
}  // namespace tavimor
