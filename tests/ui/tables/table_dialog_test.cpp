#include <QAbstractItemView>
#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QListWidget>
#include <QMenuBar>
#include <QTableWidget>

#include "formats/tables/import_table.h"
#include "ui/support/main_window_test.h"

namespace tavimor {
namespace {

constexpr char kPlane[] = "x,y,f\n0,10,101\n0,30,301\n0.5,10,102\n0.5,30,302\n1,10,103\n1,30,303\n";

template <class T>
T& in(QDialog& dialog, const char* name) {
  T* control = dialog.findChild<T*>(name);
  if (control == nullptr) throw std::runtime_error(std::string("no control ") + name);
  return *control;
}

void pressButton(QDialog& dialog, const char* name) {
  QTest::mouseClick(&in<QPushButton>(dialog, name), Qt::LeftButton);
}

void clickBox(QDialog& dialog, const char* name) {
  auto& box = in<QCheckBox>(dialog, name);
  QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(8, box.height() / 2));
}

// Opens the list of a box by its keys, goes to the choice and takes it.
void choose(QDialog& dialog, const char* name, int choice) {
  auto& box = in<QComboBox>(dialog, name);
  box.setFocus();
  QTest::keyClick(&box, Qt::Key_Down, Qt::AltModifier);
  QTest::keyClick(box.view(), Qt::Key_Home);
  for (int n = 0; n < choice; ++n) QTest::keyClick(box.view(), Qt::Key_Down);
  QTest::keyClick(box.view(), Qt::Key_Return);
  EXPECT_EQ(box.currentIndex(), choice) << name;
}

void retype(QDialog& dialog, const char* name, const QString& text) {
  auto& box = in<QLineEdit>(dialog, name);
  QTest::mouseClick(&box, Qt::LeftButton);
  box.selectAll();
  QTest::keyClicks(&box, text);
}

std::string findingsOf(QDialog& dialog) {
  std::string texts;
  auto& list = in<QListWidget>(dialog, "lstFindings");
  for (int n = 0; n < list.count(); ++n) texts += list.item(n)->text().toStdString() + '\n';
  return texts;
}

std::string cell(QDialog& dialog, int row, int column) {
  return in<QTableWidget>(dialog, "grdPreview").item(row, column)->text().toStdString();
}

int roleOf(QDialog& dialog, const char* name) { return in<QComboBox>(dialog, name).currentIndex(); }

class TableDialogTest : public MainWindowTest {
 protected:
  // Pastes a table and acts in the dialog, which the action must close.
  void paste(const QString& text, const Dialogs::Reply& act) {
    QGuiApplication::clipboard()->setText(text);
    dialogs.expect(act);
    press(Qt::Key_V, Qt::ControlModifier | Qt::ShiftModifier);
    activate();
  }
};

TEST_F(TableDialogTest, AnImportedTableStandsInTheWindowAsIfOpened) {
  writeFile("plane.csv", kPlane);
  dialogs.expectAndType(pathOf("plane.csv"));
  dialogs.expect([](QDialog& dialog) { pressButton(dialog, "cmdCreate"); });
  press(Qt::Key_I, Qt::ControlModifier);
  activate();
  EXPECT_EQ(textOf("txtOrder"), "2");
  EXPECT_EQ(textOf("txtVarNams"), "x,y");
  EXPECT_EQ(textOf("txtLL(1)"), "10");
  EXPECT_EQ(textOf("txtUL(1)"), "30");
  EXPECT_EQ(textOf("txtPoints(0)"), "3");
  EXPECT_EQ(textOf("txtTerms(0)"), "1");
  EXPECT_EQ(textOf("txtExpansion(0)"), "*");
  EXPECT_TRUE(check("chkSpaced(0)").isChecked());
  EXPECT_EQ(focusName(), "txtLL(0)");
  EXPECT_EQ(model.FileName, "") << "a table is no file to save the problem in";
  for (const char* name : {"mnuOpen", "mnuImport", "mnuPaste"}) EXPECT_FALSE(item(name).isEnabled()) << name;
  EXPECT_TRUE(item("mnuSave").isEnabled());
  click("cmdCompute");
  EXPECT_TRUE(model.FitDone);
  EXPECT_DOUBLE_EQ(model.Coef(1, 0, 0, 0), 2.0);
}

TEST_F(TableDialogTest, ATableThatWasTakenGoesWithAnUndoAndComesBack) {
  paste(kPlane, [](QDialog& dialog) { pressButton(dialog, "cmdCreate"); });
  const std::vector<double> function(model.F.data(), model.F.data() + model.F.size());
  EXPECT_EQ(item("mnuUndo").text(), "&Undo: table taken");
  press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(focusName(), "txtOrder");
  EXPECT_EQ(textOf("txtOrder"), "");
  EXPECT_TRUE(item("mnuPaste").isEnabled());
  press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(std::vector<double>(model.F.data(), model.F.data() + model.F.size()), function);
  EXPECT_FALSE(box("txtVarNams").isEnabled());
}

TEST_F(TableDialogTest, SavingAsksForAName) {
  paste(kPlane, [](QDialog& dialog) { pressButton(dialog, "cmdCreate"); });
  dialogs.expectAndType(pathOf("saved"));
  press(Qt::Key_S, Qt::ControlModifier);
  EXPECT_TRUE(contentOf("saved").startsWith(" 1 \r\n\"x\",0,1,.5,#TRUE#,0,1\r\n"));
}

TEST_F(TableDialogTest, ShowsWhatWasFound) {
  paste("x;T;note\r\n0;1,5;a\r\n1;2;b\r\n", [](QDialog& dialog) {
    EXPECT_EQ(in<QComboBox>(dialog, "cboSeparator").currentText(), "Semicolon");
    EXPECT_EQ(in<QComboBox>(dialog, "cboMark").currentText(), "Comma");
    EXPECT_EQ(in<QComboBox>(dialog, "cboForm").currentText(), "List of points");
    EXPECT_TRUE(in<QCheckBox>(dialog, "chkHeading").isChecked());
    EXPECT_EQ(roleOf(dialog, "cboRole(0)"), 1);
    EXPECT_EQ(roleOf(dialog, "cboRole(1)"), 5);
    EXPECT_EQ(roleOf(dialog, "cboRole(2)"), 0);
    EXPECT_EQ(cell(dialog, 1, 0), "x");
    EXPECT_EQ(cell(dialog, 2, 1), "1,5");
    EXPECT_EQ(in<QTableWidget>(dialog, "grdPreview").verticalHeaderItem(2)->text(), "2");
    pressButton(dialog, "cmdCancel");
  });
}

TEST_F(TableDialogTest, SaysTheSameWordsAsTheCommandLine) {
  const std::string text = "x,y,f\n0,0,1\n0,1,2\n1,0,3\n2,0,4\n2,1,5\n";
  std::string wanted, notes;
  for (const TableFinding& finding : importTable(text, {}).findings)
    (finding.isRefusal() ? wanted : notes) += finding.text + '\n';
  wanted += notes;
  paste(QString::fromStdString(text), [&](QDialog& dialog) {
    EXPECT_EQ(findingsOf(dialog), wanted);
    EXPECT_FALSE(in<QPushButton>(dialog, "cmdCreate").isEnabled());
    pressButton(dialog, "cmdCancel");
  });
}

TEST_F(TableDialogTest, CalledOffLeavesTheStart) {
  paste(kPlane, [](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
  EXPECT_TRUE(item("mnuOpen").isEnabled());
  EXPECT_TRUE(item("mnuPaste").isEnabled());
  EXPECT_TRUE(box("txtOrder").isEnabled());
  EXPECT_EQ(textOf("txtOrder"), "");
}

TEST_F(TableDialogTest, TakesOtherRoles) {
  paste("a,b,f,g\n0,1,5,50\n0,2,6,60\n1,1,7,70\n1,2,8,80\n", [](QDialog& dialog) {
    EXPECT_EQ(roleOf(dialog, "cboRole(3)"), 5);
    choose(dialog, "cboRole(2)", 5);
    EXPECT_EQ(roleOf(dialog, "cboRole(3)"), 0) << "there is one function";
    choose(dialog, "cboRole(0)", 2);
    EXPECT_EQ(roleOf(dialog, "cboRole(1)"), 0) << "and one second variable";
    choose(dialog, "cboRole(1)", 1);
    pressButton(dialog, "cmdCreate");
  });
  EXPECT_EQ(textOf("txtVarNams"), "b,a");
  EXPECT_EQ(model.F(1, 0, 0, 0), 6);
}

TEST_F(TableDialogTest, TakesAnotherSeparatorAndMark) {
  paste("1,234\t5\n2,345\t6\n3,456\t8\n", [](QDialog& dialog) {
    EXPECT_FALSE(in<QPushButton>(dialog, "cmdCreate").isEnabled()) << "thousands or decimals";
    choose(dialog, "cboSeparator", 0);
    EXPECT_EQ(cell(dialog, 1, 1), "234\t5");
    choose(dialog, "cboSeparator", 2);
    EXPECT_EQ(cell(dialog, 1, 1), "5");
    choose(dialog, "cboMark", 1);
    EXPECT_TRUE(in<QPushButton>(dialog, "cmdCreate").isEnabled()) << findingsOf(dialog);
    pressButton(dialog, "cmdCreate");
  });
  EXPECT_EQ(textOf("txtLL(0)"), "1.234");
}

TEST_F(TableDialogTest, TakesACrossTableWhereTold) {
  paste("0,10,30\n0,1,2\n1,3,4\n", [](QDialog& dialog) {
    EXPECT_FALSE(in<QPushButton>(dialog, "cmdCreate").isEnabled());
    choose(dialog, "cboForm", 1);
    pressButton(dialog, "cmdCreate");
  });
  EXPECT_EQ(model.LastVar, 1);
  EXPECT_EQ(model.F(1, 0, 0, 0), 3);
}

TEST_F(TableDialogTest, TakesDegreesAndCentres) {
  paste(kPlane, [](QDialog& dialog) {
    EXPECT_FALSE(in<QLineEdit>(dialog, "txtDegree(2)").isVisible());
    retype(dialog, "txtDegree(0)", "3");
    EXPECT_EQ(findingsOf(dialog).substr(0, 44), "the degree of x must be 0 or more and below ");
    EXPECT_FALSE(in<QPushButton>(dialog, "cmdCreate").isEnabled());
    retype(dialog, "txtDegree(0)", "2");
    retype(dialog, "txtCentre(1)", "here");
    EXPECT_FALSE(in<QPushButton>(dialog, "cmdCreate").isEnabled());
    retype(dialog, "txtCentre(1)", "15");
    pressButton(dialog, "cmdCreate");
  });
  EXPECT_EQ(textOf("txtTerms(0)"), "2");
  EXPECT_EQ(textOf("txtExpansion(1)"), "15");
}

TEST_F(TableDialogTest, TakesMeansAndASmallerGridWhereTold) {
  paste("x,y,f\n0,0,1\n0,1,2\n1,0,3\n2,0,4\n2,1,5\n2,1,7\n", [](QDialog& dialog) {
    clickBox(dialog, "chkMeans");
    EXPECT_FALSE(in<QPushButton>(dialog, "cmdCreate").isEnabled());
    clickBox(dialog, "chkShrink");
    pressButton(dialog, "cmdCreate");
  });
  EXPECT_EQ(model.LastPoint[0], 1);
  EXPECT_EQ(model.F(1, 1, 0, 0), 6);
}

TEST_F(TableDialogTest, ADoubleClickShowsTheLine) {
  QString text = "x,f\n";
  for (int n = 0; n < 500; ++n) text += QString("%1,%2\n").arg(n).arg(n == 400 ? QString("?") : QString::number(2 * n));
  paste(text, [](QDialog& dialog) {
    auto& list = in<QListWidget>(dialog, "lstFindings");
    const QPoint place = list.visualItemRect(list.item(0)).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, place);
    auto& preview = in<QTableWidget>(dialog, "grdPreview");
    ASSERT_FALSE(preview.selectedItems().isEmpty());
    const int row = preview.selectedItems().first()->row();
    EXPECT_EQ(preview.verticalHeaderItem(row)->text(), "402");
    EXPECT_EQ(cell(dialog, row, 1), "?");
    pressButton(dialog, "cmdCancel");
  });
}

TEST_F(TableDialogTest, AnEmptyClipboardIsNoTable) {
  paste("", [](QDialog& dialog) {
    EXPECT_EQ(findingsOf(dialog).substr(0, 9), "no table:");
    pressButton(dialog, "cmdCancel");
  });
}

TEST_F(TableDialogTest, ToolsStandBetweenFileAndHelp) {
  EXPECT_EQ(item("mnuTools").text().remove('&'), "Tools");
  EXPECT_EQ(item("mnuImport").text().remove('&'), "Import table...");
  EXPECT_EQ(item("mnuPaste").text().remove('&'), "Paste table");
  const QList<QAction*> bar = window->findChild<QMenuBar*>()->actions();
  EXPECT_EQ(bar.indexOf(&item("mnuTools")), bar.indexOf(&item("mnuFile")) + 1);
  EXPECT_EQ(bar.indexOf(&item("mnuHelp")), bar.indexOf(&item("mnuTools")) + 1);
}

TEST_F(TableDialogTest, ToolsEndWithTheNumberOfVariables) {
  EXPECT_TRUE(item("mnuImport").isEnabled());
  declare("1", "x");
  EXPECT_FALSE(item("mnuImport").isEnabled());
  EXPECT_FALSE(item("mnuPaste").isEnabled());
}

}  // namespace
}  // namespace tavimor
