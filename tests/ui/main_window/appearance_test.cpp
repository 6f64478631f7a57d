#include <gtest/gtest.h>

#include <QAccessible>
#include <QFontInfo>
#include <QMenu>
#include <QMenuBar>

#include "ui/support/main_window_test.h"

namespace tavimor {
namespace {

class Appearance : public MainWindowTest {};

TEST_F(Appearance, TheWindowHasItsNameAndCaption) {
  EXPECT_EQ(window->objectName(), "frmTavimor");
  EXPECT_EQ(window->windowTitle(), "Tavimor");
}

TEST_F(Appearance, LabelsHaveTheirCaptions) {
  const std::vector<std::pair<const char*, const char*>> captions = {
      {"lblOrder", "Enter # of independent variables:"},
      {"lblVarNam", "Enter the names of the independent variables, separated by commas:"},
      {"lblVariable", "Variable:"},
      {"lblLL", "Lower limit:"},
      {"lblUL", "Upper limit:"},
      {"lblTerms", "Desired degree:"},
      {"lblPoints", "# of values:"},
      {"lblExpansion", "Center of expansion:"}};
  for (const auto& [name, caption] : captions) EXPECT_EQ(label(name).text(), caption);
}

TEST_F(Appearance, ButtonsHaveTheirCaptions) {
  const std::vector<std::pair<const char*, const char*>> captions = {
      {"cmdAddVars(0)", "Add values"},  {"cmdEditVars(0)", "Edit values"}, {"cmdPrevVar", "Previous"},
      {"cmdNextVar", "Next"},           {"cmdEditFun", "Edit function"},   {"cmdCompute", "Compute"},
      {"cmdEvaluations", "Evaluations"}};
  for (const auto& [name, caption] : captions) EXPECT_EQ(button(name).text(), caption);
  EXPECT_EQ(check("chkSpaced(0)").text(), "Equally spaced");
}

TEST_F(Appearance, TheElementsOfAllBlocksHaveTheirNames) {
  declare("4", "a,b,c,d");
  for (int k = 0; k < 4; ++k) {
    for (const char* array : {"txtLL", "txtUL", "txtTerms", "txtPoints", "txtExpansion"})
      EXPECT_EQ(box(QString("%1(%2)").arg(array).arg(k)).metaObject()->superClass(), &QLineEdit::staticMetaObject);
    check(QString("chkSpaced(%1)").arg(k));
    button(QString("cmdAddVars(%1)").arg(k));
    button(QString("cmdEditVars(%1)").arg(k));
    label(QString("lblVar(%1)").arg(k));
  }
}

TEST_F(Appearance, ToolTipsAreExact) {
  EXPECT_EQ(box("txtExpansion(0)").toolTip(), "Enter \"*\" for center of interval");
  EXPECT_EQ(button("cmdCompute").toolTip(), "Compute coefficients");
  EXPECT_EQ(results().toolTip(), "Coefficients");
}

TEST_F(Appearance, TheMenusHaveTheirNamesCaptionsAndKeys) {
  const std::vector<std::tuple<const char*, const char*, const char*>> items = {
      {"mnuFile", "File", ""},
      {"mnuOpen", "Open", "Ctrl+O"},
      {"mnuSave", "Save", "Ctrl+S"},
      {"mnuSaveAs", "Save As", "Ctrl+Shift+S"},
      {"mnuPrint", "Print", "Ctrl+P"},
      {"mnuHelp", "Help", ""},
      {"mnuAbout", "About", ""},
      {"mnuTools", "Tools", ""},
      {"mnuExport", "Export formula...", "Ctrl+E"}};
  for (const auto& [name, caption, key] : items) {
    EXPECT_EQ(item(name).text().remove('&'), caption);
    EXPECT_EQ(item(name).shortcut().toString(QKeySequence::PortableText), key);
  }
  EXPECT_TRUE(item("mnuFileBar1").isSeparator());
  EXPECT_TRUE(item("mnuFileBar2").isSeparator());
}

TEST_F(Appearance, AltAndTheFirstLetterOpenTheMenu) {
  press(Qt::Key_F, Qt::AltModifier);
  const QMenu* menu = item("mnuFile").menu();
  EXPECT_TRUE(menu->isVisible());
  press(Qt::Key_Escape);
}

TEST_F(Appearance, FontsAreThoseOfTheControls) {
  EXPECT_EQ(box("txtOrder").font().families().first(), "Verdana");
  EXPECT_EQ(box("txtVarNams").font().families().first(), "Verdana");
  EXPECT_EQ(label("lblLL").font().families().first(), "MS Sans Serif");
  EXPECT_EQ(button("cmdCompute").font().families().first(), "MS Sans Serif");
  EXPECT_EQ(results().font().families().first(), "Courier New");
  EXPECT_TRUE(QFontInfo(results().font()).fixedPitch());
}

TEST_F(Appearance, AScreenReaderReadsWhatAFieldIsFor) {
  const std::vector<std::pair<const char*, const char*>> names = {{"txtLL(0)", "Lower limit"},
                                                                  {"txtUL(0)", "Upper limit"},
                                                                  {"txtTerms(0)", "Desired degree"},
                                                                  {"txtPoints(0)", "Number of values"},
                                                                  {"txtExpansion(0)", "Center of expansion"},
                                                                  {"txtOrder", "Number of independent variables"}};
  for (const auto& [name, spoken] : names)
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&box(name))->text(QAccessible::Name), spoken);
}

TEST_F(Appearance, TheListTakesTheRoom) {
  const int height = results().height(), frame = window->findChild<QWidget*>("fraSpecs")->height();
  window->resize(window->width(), window->height() + 200);
  QTest::qWait(10);
  EXPECT_EQ(results().height(), height + 200);
  EXPECT_EQ(window->findChild<QWidget*>("fraSpecs")->height(), frame);
}

}  // namespace
}  // namespace tavimor
