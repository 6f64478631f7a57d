#include <gmock/gmock.h>

#include <QDialog>
#include <QDir>
#include <QDirIterator>
#include <QPlainTextEdit>
#include <QTreeWidget>

#include "support/files.h"
#include "support/stored.h"
#include "ui/controls/state_folder.h"
#include "ui/controls/status_line.h"
#include "ui/data_windows/frmFun.h"
#include "ui/support/main_window_test.h"

namespace tavimor {
namespace {

using testing::HasSubstr;

class Restore : public MainWindowTest {
 protected:
  // A problem of one variable, whose function has one value.
  void typeProblem() {
    declare("1", "x");
    specify(0, "0", "4", "3", "2");
    typeValue("0", "7.5");
  }

  void typeValue(const QString& point, const QString& value) {
    dialogs.expectAndType(point);
    click("cmdEditFun");
    auto* function = Form::openForm<frmFun>();
    ASSERT_NE(function, nullptr);
    ASSERT_TRUE(waitForKeyboard(*function));
    type(value);
    clickDone();
  }

  void startAnew() {
    window->unload();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    model = Dimension();
    window = new frmTavimor(model);
    window->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window));
  }

  // Chooses Restore... and looks at the dialog before a button is pressed.
  void restore(const QString& button = "Open a copy", const std::function<void(QDialog&)>& look = {}) {
    dialogs.expect([button, look](QDialog& dialog) {
      if (look) look(dialog);
      for (auto* one : dialog.findChildren<QPushButton*>())
        if (one->text().remove('&') == button) return QTest::mouseClick(one, Qt::LeftButton);
      ADD_FAILURE() << "no button " << button.toStdString();
    });
    item("mnuRestore").trigger();
    activate();
  }

  static QTreeWidget& list(QDialog& dialog) { return *dialog.findChild<QTreeWidget*>("lstRestore"); }

  std::string status() { return window->findChild<StatusLine*>("stbStatus")->text().toStdString(); }

  // The folder of the problem that is kept, where it is the only one.
  static QString keptFolder() {
    QDirIterator all(QString::fromStdString(stateFolder()), {"problem.dat"}, QDir::Files, QDirIterator::Subdirectories);
    return all.hasNext() ? QFileInfo(all.next()).path() : QString();
  }

  // But for what the windows remember.
  static QStringList keptFiles() {
    QStringList files;
    QDirIterator all(QString::fromStdString(stateFolder()), QDir::Files, QDirIterator::Subdirectories);
    while (all.hasNext()) files << QFileInfo(all.next()).fileName();
    files.removeAll(QStringLiteral("windows.ini"));
    return files;
  }
};

TEST_F(Restore, BringsBackWhatWasClosedWithoutSaving) {
  typeProblem();
  startAnew();
  EXPECT_THAT(status(), HasSubstr("Restore..."));
  restore("Open a copy", [](QDialog& dialog) {
    const QTreeWidgetItem* one = list(dialog).topLevelItem(0);
    EXPECT_EQ(one->text(0), "not saved yet");
    EXPECT_EQ(one->text(1), "x");
    EXPECT_EQ(one->text(2), "3");
    EXPECT_EQ(one->text(4), "closed without saving");
    EXPECT_TRUE(dialog.findChild<QPlainTextEdit*>("txtPreview")->toPlainText().contains("7.5"));
  });
  EXPECT_EQ(textOf("txtUL(0)"), "4");
  EXPECT_EQ(textOf("txtExpansion(0)"), "*");
  EXPECT_EQ(textOf("txtTerms(0)"), "2");
  EXPECT_EQ(model.F(0, 0, 0, 0), 7.5);
  EXPECT_EQ(model.FileName, "");
  EXPECT_FALSE(item("mnuOpen").isEnabled());
}

TEST_F(Restore, AFieldThatWasBeingTypedHasItsTextAgain) {
  declare("1", "x");
  enter("txtLL(0)", "-");
  startAnew();
  restore();
  EXPECT_EQ(textOf("txtLL(0)"), "-");
  EXPECT_TRUE(box("txtPoints(0)").isEnabled());
}

TEST_F(Restore, WhatIsTypedIsKeptByItself) {
  typeProblem();
  EXPECT_TRUE(QTest::qWaitFor([] { return keptFiles().contains("problem.dat"); }));
}

TEST_F(Restore, WhatIsRestoredIsKeptByTheNewSessionAlone) {
  typeProblem();
  startAnew();
  restore();
  const QString earlier = keptFolder();
  EXPECT_TRUE(QTest::qWaitFor([&] { return keptFolder() != earlier && keptFiles().count("problem.dat") == 1; }));
  startAnew();
  restore("Close", [](QDialog& dialog) { EXPECT_EQ(list(dialog).topLevelItemCount(), 1); });
}

TEST_F(Restore, WhatWasSavedLeavesNothing) {
  typeProblem();
  dialogs.expectAndType(pathOf("saved"));
  press(Qt::Key_S, Qt::ControlModifier);
  startAnew();
  EXPECT_EQ(status(), "");
  EXPECT_EQ(keptFiles(), QStringList());
}

TEST_F(Restore, WhatWasOpenedAndComputedOnlyLeavesNothing) {
  test::store(twoVariables(), file("problem"));
  open("problem");
  click("cmdCompute");
  startAnew();
  EXPECT_EQ(keptFiles(), QStringList());
}

TEST_F(Restore, AChangeOfAnOpenedProblemIsKeptUnderItsName) {
  test::store(twoVariables(), file("problem"));
  open("problem");
  enter("txtUL(0)", "9");
  startAnew();
  restore("Open a copy", [](QDialog& dialog) { EXPECT_EQ(list(dialog).topLevelItem(0)->text(0), "problem"); });
  EXPECT_EQ(textOf("txtUL(0)"), "9");
  EXPECT_EQ(model.FileName, "");
}

TEST_F(Restore, AnErrorsEndIsTold) {
  typeProblem();
  window->keepForRestore(SessionEnd::RunTimeError);
  EXPECT_TRUE(keptFiles().contains("end"));
}

TEST_F(Restore, TenReplacedPairsAreListedUnderTheirFile) {
  test::store(twoVariables(), file("problem"));
  open("problem");
  for (int n = 0; n < 12; ++n) {
    enter("txtUL(0)", QString::number(10 + n));
    press(Qt::Key_S, Qt::ControlModifier);
  }
  restore("Close", [](QDialog& dialog) {
    ASSERT_EQ(list(dialog).topLevelItemCount(), 1);
    const QTreeWidgetItem* one = list(dialog).topLevelItem(0);
    EXPECT_EQ(one->text(0), "problem");
    EXPECT_EQ(one->childCount(), 10);
    EXPECT_EQ(one->child(0)->text(4), "replaced by a save");
  });
}

TEST_F(Restore, RemovesWhatIsNotWanted) {
  typeProblem();
  startAnew();
  dialogs.expect([](QDialog& dialog) {
    QTest::mouseClick(dialog.findChild<QPushButton*>("cmdRemove"), Qt::LeftButton);
    EXPECT_EQ(list(dialog).topLevelItemCount(), 0);
    EXPECT_FALSE(dialog.findChild<QPushButton*>("cmdOpen")->isEnabled());
    QTest::mouseClick(dialog.findChild<QPushButton*>("cmdClose"), Qt::LeftButton);
  });
  item("mnuRestore").trigger();
  EXPECT_EQ(keptFiles().filter("problem"), QStringList());
}

TEST_F(Restore, AWindowThatHasItsProblemOpensIntoANewOne) {
  typeProblem();
  startAnew();
  declare("1", "y");
  restore("Close", [](QDialog& dialog) {
    EXPECT_EQ(dialog.findChild<QPushButton*>("cmdOpen")->text(), "&Open a copy in a new window");
  });
}

// A file in the place of the folder stands for all that can be refused.
TEST_F(Restore, WhatCannotBeKeptIsToldOnceAndHindersNothing) {
  test::writeBytes(stateFolder(), "");
  typeProblem();
  EXPECT_TRUE(QTest::qWaitFor([this] { return status().find("cannot be kept") != std::string::npos; }));
  dialogs.expectAndType(pathOf("saved"));
  press(Qt::Key_S, Qt::ControlModifier);
  EXPECT_TRUE(QFile::exists(pathOf("saved.dat")));
}

}  // namespace
}  // namespace tavimor
