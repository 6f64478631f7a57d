#include "ui/controls/help/help_print.h"

#include <QFile>
#include <QImage>
#include <QProcess>

#include "ui/support/help_viewer_test.h"

namespace tavimor {
namespace {

class HelpPrinting : public HelpViewerTest {
 protected:
  static QString textOf(const QString& pdf) {
    QProcess reader;
    reader.start("pdftotext", {"-layout", pdf, "-"});
    EXPECT_TRUE(reader.waitForFinished()) << "pdftotext, of poppler-utils";
    return QString::fromUtf8(reader.readAllStandardOutput());
  }
};

TEST_F(HelpPrinting, PrintPutsTheWholeTextOnPaper) {
  show("second");
  const QString pdf = folder.filePath("help.pdf");
  dialogs.expectAndPrintTo(pdf);
  click("cmdPrint");
  const QString text = textOf(pdf);
  for (const char* expected : {"Beginning", "apple 0", "apple 59", "A section", "plum 59", "A short one, \xC2\xB5"})
    EXPECT_TRUE(text.contains(QString::fromUtf8(expected))) << expected;
  EXPECT_GT(text.count('\f'), 2);
}

TEST_F(HelpPrinting, TheTextHasTheSamePagesOnPaperHoweverItIsZoomed) {
  show();
  QStringList printed;
  for (const int zooms : {0, 8}) {
    for (int n = 0; n < zooms; ++n) press(Qt::Key_Plus, Qt::ControlModifier);
    const QString pdf = folder.filePath(QString("%1.pdf").arg(zooms));
    dialogs.expectAndPrintTo(pdf);
    press(Qt::Key_P, Qt::ControlModifier);
    printed << textOf(pdf);
    viewer->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(viewer));
  }
  EXPECT_FALSE(printed[0].isEmpty());
  EXPECT_EQ(printed[0], printed[1]);
}

TEST_F(HelpPrinting, PicturesBesideTheTextArePrintedWithIt) {
  QImage picture(40, 40, QImage::Format_RGB32);
  picture.fill(Qt::blue);
  ASSERT_TRUE(picture.save(folder.filePath("blue.png")));
  path = write("pictured.hlp", "<h1>One</h1><p><img src=\"blue.png\"></p>");
  show();
  const QString pdf = folder.filePath("pictured.pdf");
  dialogs.expectAndPrintTo(pdf);
  click("cmdPrint");
  QFile printed(pdf);
  ASSERT_TRUE(printed.open(QIODevice::ReadOnly));
  EXPECT_TRUE(printed.readAll().contains("/Width 40"));
}

TEST_F(HelpPrinting, CallingTheDialogOffPrintsNothing) {
  show();
  dialogs.expectAndCancel();
  click("cmdPrint");
  EXPECT_TRUE(viewer->isVisible());
}

}  // namespace
}  // namespace tavimor
