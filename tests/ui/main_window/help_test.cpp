#include <gtest/gtest.h>

#include <QDir>
#include <QMenuBar>
#include <QTextBrowser>

#include "support/stored.h"
#include "ui/controls/help/help_file.h"
#include "ui/support/help_viewer_test.h"
#include "ui/support/main_window_test.h"

namespace tavimor {
namespace {

/// The main window in a folder with a help file that has a page for each window.
class Help : public MainWindowTest {
 protected:
  Help() {
    QByteArray text = "<h1>Beginning</h1>";
    for (const char* name :
         {"frmTavimor", "frmVars", "frmFun", "frmEvaluations", "frmAbout", "frmAnalysis", "frmExport", "frmTable"})
      text += "<h1><a name=\"" + QByteArray(name) + "\"></a>About " + name + "</h1>" + longText(name);
    writeFile("tavimor.hlp", text);
    test::store(twoVariables(), file("two"));
  }

  /// Presses F1 where the focus is and returns the page that the help window, which comes to front, goes to.
  std::string pageAfterF1() {
    press(Qt::Key_F1);
    return shownPage();
  }

  static std::string shownPage() {
    EXPECT_TRUE(waitForKeyboard(help()));
    return source().fragment().toStdString();
  }

  static HelpViewer& help() {
    if (Form::openForm<HelpViewer>() == nullptr) throw std::runtime_error("no help window");
    return *Form::openForm<HelpViewer>();
  }

  static QUrl source() { return help().findChild<QTextBrowser*>("txtPage")->source(); }

  static Form& opened(const char* name) {
    for (Form* form : Form::openForms())
      if (form->objectName() == QLatin1String(name)) return *form;
    throw std::runtime_error("no window " + std::string(name));
  }

  void editFunction() {
    dialogs.expectAndType("0,0");
    click("cmdEditFun");
    ASSERT_TRUE(waitForKeyboard(opened("frmFun")));
  }
};

TEST_F(Help, TheMenuShowsTheFileFromItsBeginning) {
  auto* bar = window->findChild<QMenuBar*>();
  QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(&item("mnuHelp")).center());
  EXPECT_EQ(shownPage(), "");
  EXPECT_EQ(source().toLocalFile(), pathOf("tavimor.hlp"));
}

TEST_F(Help, AltAndHShowIt) {
  press(Qt::Key_H, Qt::AltModifier);
  EXPECT_EQ(shownPage(), "");
}

TEST_F(Help, F1InTheMainWindowGoesToItsPageWhateverHasTheFocus) {
  open("two");
  EXPECT_EQ(pageAfterF1(), "frmTavimor");
  for (QWidget* control :
       {static_cast<QWidget*>(&box("txtLL(0)")), static_cast<QWidget*>(&results()),
        static_cast<QWidget*>(&check("chkSpaced(0)")), static_cast<QWidget*>(&button("cmdCompute"))}) {
    help().close();
    activate();
    control->setFocus();
    EXPECT_EQ(pageAfterF1(), "frmTavimor") << control->objectName().toStdString();
  }
}

TEST_F(Help, F1InTheValuesWindowGoesToItsPage) {
  open("two");
  click("cmdEditVars(0)");
  Form& values = opened("frmVars");
  ASSERT_TRUE(waitForKeyboard(values));
  for (const char* control : {"MSFlexGridVars", "txtDataEntry", "cmdExit"}) {
    values.activateWindow();
    ASSERT_TRUE(waitForKeyboard(values));
    values.findChild<QWidget*>(control)->setFocus();
    EXPECT_EQ(pageAfterF1(), "frmVars") << control;
    help().close();
  }
}

TEST_F(Help, F1InTheFunctionWindowGoesToItsPage) {
  open("two");
  editFunction();
  EXPECT_EQ(pageAfterF1(), "frmFun");
}

TEST_F(Help, F1InTheEvaluationsWindowGoesToItsPage) {
  open("two");
  click("cmdCompute");
  click("cmdEvaluations");
  ASSERT_TRUE(waitForKeyboard(opened("frmEvaluations")));
  EXPECT_EQ(pageAfterF1(), "frmEvaluations");
}

TEST_F(Help, F1InTheAboutWindowGoesToItsPage) {
  open("two");
  press(Qt::Key_A, Qt::AltModifier);
  Form& about = opened("frmAbout");
  ASSERT_TRUE(QTest::qWaitForWindowActive(&about));
  QTest::keyClick(&about, Qt::Key_F1);
  EXPECT_EQ(shownPage(), "frmAbout");
}

TEST_F(Help, F1InTheMainWindowWorksWhileItIsDisabled) {
  window->disable();
  QTest::keyClick(window, Qt::Key_F1);
  EXPECT_EQ(shownPage(), "frmTavimor");
}

TEST_F(Help, F1InTheHelpWindowDoesNothing) {
  EXPECT_EQ(pageAfterF1(), "frmTavimor");
  const HelpViewer* first = Form::openForm<HelpViewer>();
  EXPECT_EQ(pageAfterF1(), "frmTavimor");
  EXPECT_EQ(Form::openForm<HelpViewer>(), first);
}

TEST_F(Help, F1WithAnotherKeyHeldDoesNothing) {
  press(Qt::Key_F1, Qt::ControlModifier);
  EXPECT_EQ(Form::openForm<HelpViewer>(), nullptr);
}

TEST_F(Help, F1InTheAnalysisWindowGoesToItsPage) {
  press(Qt::Key_F9);
  ASSERT_TRUE(QTest::qWaitForWindowActive(&opened("frmAnalysis")));
  QTest::keyClick(&opened("frmAnalysis"), Qt::Key_F1);
  EXPECT_EQ(shownPage(), "frmAnalysis");
}

TEST_F(Help, F1InADialogOfItsOwnPageShowsItBesideTheDialog) {
  open("two");
  click("cmdCompute");
  dialogs.expect([](QDialog& dialog) {
    QTest::keyClick(&dialog, Qt::Key_F1);
    EXPECT_EQ(source().fragment(), "frmExport");
    help().close();
    EXPECT_EQ(Form::openForm<HelpViewer>(), nullptr);
    EXPECT_TRUE(dialog.isVisible());
    QTest::keyClick(&dialog, Qt::Key_Escape);
  });
  press(Qt::Key_E, Qt::ControlModifier);
}

TEST_F(Help, F1InADialogWithoutAPageDoesNothing) {
  open("two");
  dialogs.expect([](QDialog& dialog) {
    QTest::keyClick(dialog.findChild<QLineEdit*>(), Qt::Key_F1);
    EXPECT_EQ(Form::openForm<HelpViewer>(), nullptr);
    QTest::keyClick(&dialog, Qt::Key_Escape);
  });
  click("cmdEditFun");
}

TEST_F(Help, TheHelpWindowIsUsedWhileTheMainWindowIsDisabled) {
  open("two");
  editFunction();
  press(Qt::Key_F1);
  EXPECT_EQ(shownPage(), "frmFun");
  EXPECT_FALSE(window->isEnabled());
  auto* contents = help().findChild<QPushButton*>("cmdContents");
  QTest::mouseClick(contents, Qt::LeftButton);
  EXPECT_EQ(shownPage(), "");
}

TEST_F(Help, TheOtherWindowsAreUsedWhileTheHelpIsOpen) {
  press(Qt::Key_F1);
  EXPECT_EQ(shownPage(), "frmTavimor");
  activate();
  declare("1", "x");
  EXPECT_EQ(textOf("txtVarNams"), "x");
  EXPECT_TRUE(help().isVisible());
}

TEST_F(Help, AnotherWindowsPageIsShownInTheSameWindow) {
  open("two");
  press(Qt::Key_F1);
  const HelpViewer* first = Form::openForm<HelpViewer>();
  activate();
  editFunction();
  EXPECT_EQ(pageAfterF1(), "frmFun");
  EXPECT_EQ(Form::openForm<HelpViewer>(), first);
}

TEST_F(Help, ClosingTheMainWindowClosesIt) {
  press(Qt::Key_F1);
  EXPECT_EQ(shownPage(), "frmTavimor");
  window->close();
  EXPECT_TRUE(Form::openForms().isEmpty());
}

TEST_F(Help, TheFileIsThatOfTheFolderInWhichTheProgramWasStarted) {
  QTemporaryDir other;
  QFile::copy(pathOf("tavimor.hlp"), other.filePath("tavimor.hlp"));
  QDir::setCurrent(other.path());
  press(Qt::Key_F1);
  EXPECT_EQ(shownPage(), "frmTavimor");
  EXPECT_EQ(source().toLocalFile(), pathOf("tavimor.hlp"));
  QDir::setCurrent(folder.path());
}

TEST_F(Help, WithoutAFileInThatFolderTheInstalledOneIsShown) {
  QFile::remove(pathOf("tavimor.hlp"));
  press(Qt::Key_F1);
  EXPECT_EQ(shownPage(), "frmTavimor");
  EXPECT_EQ(source().toLocalFile(), installedHelpFile("tavimor.hlp"));
}

}  // namespace
}  // namespace tavimor
