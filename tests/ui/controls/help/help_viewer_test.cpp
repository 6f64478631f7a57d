#include "ui/controls/help/help_viewer.h"

#include <gmock/gmock.h>

#include <QDesktopServices>
#include <QDir>
#include <QFontInfo>
#include <QPushButton>
#include <QScrollBar>
#include <QTextTable>

#include "ui/controls/common_dialog.h"
#include "ui/controls/help/help_file.h"
#include "ui/support/help_viewer_test.h"

namespace tavimor {
namespace {

using ::testing::HasSubstr;

class HelpWindow : public HelpViewerTest {};

bool hasInk(const QImage& image) {
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (qGray(image.pixel(x, y)) < 128) return true;
  return false;
}

TEST_F(HelpWindow, ItIsAFormThatBeginsAtTheBeginning) {
  show();
  EXPECT_TRUE(Form::openForms().contains(viewer.data()));
  EXPECT_EQ(top(), "Beginning");
  EXPECT_EQ(marked(), "Beginning");
  EXPECT_EQ(QApplication::focusWidget(), &page());
}

TEST_F(HelpWindow, TheContentsListIsTheTreeOfTheHeadings) {
  show();
  ASSERT_EQ(contents().topLevelItemCount(), 3);
  EXPECT_EQ(contents().topLevelItem(0)->text(0), "Beginning");
  EXPECT_EQ(contents().topLevelItem(0)->childCount(), 0);
  EXPECT_EQ(contents().topLevelItem(1)->text(0), "Second page");
  ASSERT_EQ(contents().topLevelItem(1)->childCount(), 1);
  EXPECT_EQ(contents().topLevelItem(1)->child(0)->text(0), "A section");
  EXPECT_EQ(contents().topLevelItem(2)->text(0), "Last page");
}

TEST_F(HelpWindow, ItOpensAtTheWantedPage) {
  show("second");
  EXPECT_EQ(top(), "Second page");
  EXPECT_EQ(marked(), "Second page");
}

TEST_F(HelpWindow, AnUnknownPageLeadsToTheBeginning) {
  show("second");
  show("frmUnknown");
  EXPECT_EQ(top(), "Beginning");
  EXPECT_EQ(marked(), "Beginning");
}

TEST_F(HelpWindow, AClickInTheContentsListGoesThere) {
  show();
  clickEntry("Second page");
  EXPECT_EQ(top(), "Second page");
  clickEntry("A section");
  EXPECT_EQ(top(), "A section");
  EXPECT_EQ(marked(), "A section");
}

TEST_F(HelpWindow, EnterInTheContentsListGoesThere) {
  show();
  contents().setFocus();
  press(Qt::Key_Down);
  EXPECT_EQ(top(), "Beginning");
  press(Qt::Key_Return);
  EXPECT_EQ(top(), "Second page");
}

class LongHelp : public HelpViewerTest {
 protected:
  LongHelp() {
    QByteArray text;
    for (int n = 0; n < 20; ++n) {
      const QByteArray number = QByteArray::number(n);
      text += "<h1><a name=\"page-" + number + "\"></a>Page " + number + "</h1>" + longText("apple") +
              "<table><tr><td>cell</td></tr></table>";
    }
    path = write("long.hlp", text + "<p>The end.</p>");
  }
};

TEST_F(LongHelp, ItOpensAtAPageFarDown) {
  show("page-17");
  EXPECT_EQ(top(), "Page 17");
  EXPECT_EQ(marked(), "Page 17");
}

TEST_F(LongHelp, ItIsPaintedFromBeginningToEnd) {
  show();
  const QScrollBar& bar = *page().verticalScrollBar();
  const QRect upperHalf(0, 0, page().viewport()->width(), page().viewport()->height() / 2);
  while (bar.value() < bar.maximum()) {
    EXPECT_TRUE(hasInk(page().viewport()->grab(upperHalf).toImage())) << bar.value();
    press(Qt::Key_PageDown);
  }
  EXPECT_EQ(page().cursorForPosition(page().viewport()->rect().bottomLeft()).block().text(), "The end.");
}

TEST_F(HelpWindow, ALastPageThatIsShortIsMarkedToo) {
  show("last");
  EXPECT_NE(top(), "Last page");
  EXPECT_EQ(marked(), "Last page");
}

TEST_F(HelpWindow, ScrollingMarksThePageInView) {
  show("second");
  press(Qt::Key_PageUp);
  EXPECT_EQ(marked(), "Beginning");
  press(Qt::Key_End);
  EXPECT_EQ(marked(), "A section");
}

TEST_F(HelpWindow, ALinkLeadsWithinTheTextAndBackGoesBack) {
  show();
  EXPECT_FALSE(find<QPushButton>("cmdBack").isEnabled());
  clickLink("other page");
  EXPECT_EQ(top(), "Second page");
  click("cmdBack");
  EXPECT_EQ(top(), "Beginning");
  EXPECT_EQ(marked(), "Beginning");
  EXPECT_FALSE(find<QPushButton>("cmdBack").isEnabled());
  click("cmdForward");
  EXPECT_EQ(top(), "Second page");
  press(Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(top(), "Beginning");
  press(Qt::Key_Right, Qt::AltModifier);
  EXPECT_EQ(top(), "Second page");
}

TEST_F(HelpWindow, ALinkToTheWebIsOpenedByTheDesktop) {
  QTextBrowser desktop;
  QDesktopServices::setUrlHandler("https", &desktop, "setSource");
  show();
  clickLink("the web");
  QDesktopServices::unsetUrlHandler("https");
  EXPECT_EQ(desktop.source(), QUrl("https://www.tavimor.example"));
  EXPECT_EQ(top(), "Beginning");
}

TEST_F(HelpWindow, ContentsGoesToTheBeginningAndToTheList) {
  show("second");
  click("cmdContents");
  EXPECT_EQ(top(), "Beginning");
  EXPECT_TRUE(contents().hasFocus());
}

TEST_F(HelpWindow, TheButtonsHaveTheirLetters) {
  show();
  press(Qt::Key_C, Qt::AltModifier);
  EXPECT_TRUE(QTest::qWaitFor([this] { return contents().hasFocus(); }));  // the button is seen going down first
  press(Qt::Key_I, Qt::AltModifier);
  EXPECT_TRUE(field().hasFocus());
}

TEST_F(HelpWindow, ASecondCallGoesToItsPageInTheSameWindow) {
  show();
  const HelpViewer* first = viewer;
  viewer->showMinimized();
  show("second");
  EXPECT_EQ(viewer, first);
  EXPECT_FALSE(viewer->isMinimized());
  EXPECT_EQ(top(), "Second page");
  EXPECT_EQ(Form::openForms().size(), 1);
  click("cmdBack");
  EXPECT_EQ(top(), "Beginning");
}

TEST_F(HelpWindow, AnotherFileIsShownWithItsOwnContents) {
  show();
  path = write("other.hlp", "<h1>Elsewhere</h1>");
  show();
  EXPECT_EQ(contents().topLevelItemCount(), 1);
  EXPECT_EQ(top(), "Elsewhere");
}

TEST_F(HelpWindow, EscapeClosesItWhateverHasTheFocus) {
  for (const char* control : {"txtPage", "tvwContents", "txtFind", "cmdPrint"}) {
    show();
    find<QWidget>(control).setFocus();
    press(Qt::Key_Escape);
    EXPECT_EQ(Form::openForm<HelpViewer>(), nullptr) << control;
  }
}

TEST_F(HelpWindow, TheTextIsZoomedAndWhatOneReadsStaysInView) {
  show("second");
  const double size = QFontInfo(page().font()).pointSizeF();
  for (int n = 0; n < 4; ++n) press(Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_GT(QFontInfo(page().font()).pointSizeF(), size);
  EXPECT_EQ(top(), "Second page");
  for (int n = 0; n < 6; ++n) press(Qt::Key_Minus, Qt::ControlModifier);
  EXPECT_LT(QFontInfo(page().font()).pointSizeF(), size);
  EXPECT_EQ(top(), "Second page");
  press(Qt::Key_0, Qt::ControlModifier);
  EXPECT_EQ(QFontInfo(page().font()).pointSizeF(), size);
}

TEST_F(HelpWindow, LinesStayReadableAndInPlaceInAWideWindow) {
  show("second");
  viewer->resize(2000, 700);
  EXPECT_TRUE(QTest::qWaitFor([this] { return page().viewport()->width() > 1200; }));
  EXPECT_LT(page().document()->textWidth(), 1200);
  EXPECT_EQ(top(), "Second page");
}

// A dark desktop, while it lives.
class DarkDesktop {
 public:
  DarkDesktop() {
    QPalette dark = light_;
    for (const auto ground : {QPalette::Window, QPalette::Base, QPalette::Button}) dark.setColor(ground, Qt::black);
    for (const auto text : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) dark.setColor(text, Qt::white);
    QApplication::setPalette(dark);
  }
  ~DarkDesktop() { QApplication::setPalette(light_); }

 private:
  const QPalette light_ = QApplication::palette();
};

TEST_F(HelpWindow, OnADarkDesktopTheWholeTextIsLightOnDark) {
  const DarkDesktop dark;
  show();
  EXPECT_LT(page().viewport()->grab().toImage().pixelColor(1, 1).lightness(), 64);
  for (const char* text : {"Beginning", "other page", "apple 0"}) {
    const QTextCursor found = page().document()->find(QLatin1String(text));
    ASSERT_FALSE(found.isNull()) << text;
    const QBrush ink = found.charFormat().foreground();
    const QColor colour = ink.style() == Qt::NoBrush ? page().palette().color(QPalette::Text) : ink.color();
    EXPECT_GT(colour.lightness(), 128) << text;
  }
}

TEST_F(HelpWindow, ItFollowsADesktopThatTurnsDarkAndKeepsItsPlace) {
  show("second");
  const auto heading = [this] { return page().document()->find("Second page").charFormat().foreground().color(); };
  EXPECT_LT(heading().lightness(), 128);
  const DarkDesktop dark;
  EXPECT_TRUE(QTest::qWaitFor([&] { return heading().lightness() > 128; }));
  EXPECT_EQ(top(), "Second page");
}

// Twice the size of text in a window of half a small screen.
TEST_F(HelpWindow, LargeTextDoesNotScrollSideways) {
  show();
  viewer->resize(683, 500);
  QFont large = page().font();
  large.setPointSizeF(2 * large.pointSizeF());
  page().setFont(large);
  EXPECT_TRUE(QTest::qWaitFor([this] { return page().horizontalScrollBar()->maximum() == 0; }));
  EXPECT_FALSE(page().horizontalScrollBar()->isVisible());
}

TEST_F(HelpWindow, CodeIsOfFixedPitchAndTablesHaveBorders) {
  path = write("styles.hlp", "<p><code>iiii</code></p><table><tr><th>Key</th></tr><tr><td>F1</td></tr></table>");
  show();
  const QTextCursor code = page().document()->find("iiii");
  EXPECT_TRUE(QFontInfo(code.charFormat().font()).fixedPitch());
  QTextTable* table = page().document()->find("F1").currentTable();
  ASSERT_NE(table, nullptr);
  EXPECT_TRUE(table->format().borderCollapse());
  EXPECT_GT(table->cellAt(1, 0).format().toTableCellFormat().topBorder(), 0);
}

TEST_F(HelpWindow, TabReachesEverything) {
  show();
  QSet<QString> reached;
  for (int n = 0; n < 20; ++n) {
    reached << QApplication::focusWidget()->objectName();
    press(Qt::Key_Tab);
  }
  for (const char* name : {"txtPage", "tvwContents", "cmdContents", "cmdPrint", "txtFind", "cmdFindNext"})
    EXPECT_TRUE(reached.contains(name)) << name;
}

class HelpFiles : public HelpViewerTest {
 protected:
  void ask(const QString& file, const std::string& page = {}) {
    dialog.HelpCommand = kHelpForceFile;
    dialog.HelpFile = file.toStdString();
    dialog.ShowHelp(page);
    viewer = Form::openForm<HelpViewer>();
  }

  CommonDialog dialog;
};

TEST_F(HelpFiles, TheDialogShowsTheFileAtThePage) {
  ask(path, "second");
  ASSERT_NE(viewer, nullptr);
  EXPECT_EQ(page().source().toLocalFile(), path);
  EXPECT_EQ(top(), "Second page");
}

TEST_F(HelpFiles, WithoutTheCommandNothingIsShown) {
  dialog.HelpFile = path.toStdString();
  dialog.ShowHelp();
  EXPECT_EQ(Form::openForm<HelpViewer>(), nullptr);
}

TEST_F(HelpFiles, AFileThatIsMissingIsReplacedByTheInstalledOne) {
  ask(folder.filePath("tavimor.hlp"));
  ASSERT_NE(viewer, nullptr);
  EXPECT_EQ(page().source().toLocalFile(), installedHelpFile("tavimor.hlp"));
}

TEST_F(HelpFiles, AFileThatIsNowhereIsReportedByTheNamesLookedFor) {
  QString message;
  dialogs.expectAndPress("OK", &message);
  ask(folder.filePath("missing.hlp"));
  EXPECT_EQ(viewer, nullptr);
  EXPECT_THAT(message.toStdString(), HasSubstr(folder.filePath("missing.hlp").toStdString()));
  EXPECT_THAT(message.toStdString(), HasSubstr("/share/tavimor/missing.hlp"));
}

TEST_F(HelpFiles, AFolderIsNoHelpFile) {
  QDir(folder.path()).mkdir("folder.hlp");
  dialogs.expectAndPress("OK");
  ask(folder.filePath("folder.hlp"));
  EXPECT_EQ(viewer, nullptr);
}

}  // namespace
}  // namespace tavimor
