#include <gmock/gmock.h>

#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QMenu>
#include <QPlainTextEdit>

#include "analysis/figures.h"
#include "formats/formulas/export_formats.h"
#include "support/example.h"
#include "support/problem.h"
#include "support/stored.h"
#include "ui/support/main_window_test.h"

namespace tavimor {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::StartsWith;

class Export : public MainWindowTest {
 protected:
  void fit() {
    test::store(twoVariables(), file("plane"));
    open("plane");
    click("cmdCompute");
  }

  // What the export dialog shows after `work` with it; Escape closes it.
  std::string previewAfter(const std::function<void(QDialog&)>& work) {
    std::string shown;
    dialogs.expect([&](QDialog& dialog) {
      EXPECT_EQ(dialog.objectName(), "frmExport");
      work(dialog);
      shown = dialog.findChild<QPlainTextEdit*>("txtPreview")->toPlainText().toStdString();
      QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    press(Qt::Key_E, Qt::ControlModifier);
    return shown;
  }

  static void choose(QDialog& dialog, const QString& title) {
    auto* forms = dialog.findChild<QComboBox*>("cboFormat");
    forms->setFocus();
    QTest::keyClicks(forms, title);
    EXPECT_EQ(forms->currentText(), title);
  }

  static void clickOn(QDialog& dialog, const char* button) {
    QTest::mouseClick(dialog.findChild<QPushButton*>(button), Qt::LeftButton);
  }

  static void typeInto(QDialog& dialog, const char* box, const QString& text) {
    auto* line = dialog.findChild<QLineEdit*>(box);
    QTest::mouseClick(line, Qt::LeftButton);
    QTest::keyClick(line, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(line, text);
  }

  std::string written(const char* format, FormulaOptions options) {
    options.figures = fitFigures(secondOpinionOn(model), model, model);
    return exportFormat(format)->write(model, model, options);
  }

  static std::string clipboard() { return QGuiApplication::clipboard()->text().toStdString(); }
};

TEST_F(Export, IsOfferedOnceThereIsAFit) {
  EXPECT_FALSE(item("mnuExport").isEnabled());
  fit();
  EXPECT_TRUE(item("mnuExport").isEnabled());
}

TEST_F(Export, ShowsTheFormulaAndCopiesIt) {
  fit();
  const std::string shown = previewAfter([](QDialog& dialog) { clickOn(dialog, "cmdCopy"); });
  EXPECT_EQ(shown, written("c", {.name = "plane", .within = {}}));
  EXPECT_EQ(clipboard(), shown);
}

TEST_F(Export, FollowsTheChoices) {
  fit();
  const std::string shown = previewAfter([](QDialog& dialog) {
    choose(dialog, "Python");
    typeInto(dialog, "txtName", "slope");
    typeInto(dialog, "txtWithin", "0.25");
    QTest::keyClick(dialog.findChild<QCheckBox*>("chkNaN"), Qt::Key_Space);
  });
  EXPECT_EQ(shown, written("python", {.name = "slope", .within = 0.25, .outside = Outside::NotANumber}));
}

TEST_F(Export, TakesTheNumberOfCheckPoints) {
  fit();
  const std::string shown = previewAfter([](QDialog& dialog) { typeInto(dialog, "txtChecks", "7"); });
  EXPECT_EQ(shown, written("c", {.name = "plane", .within = {}, .checks = 7}));
}

TEST_F(Export, OfANumberOfCheckPointsThatIsNoneGivesNothing) {
  fit();
  for (const char* text : {"", "-1", "1.5", "100001"}) {
    activate();
    const std::string shown = previewAfter([&](QDialog& dialog) {
      typeInto(dialog, "txtChecks", text);
      if (*text == '\0') QTest::keyClick(dialog.findChild<QLineEdit*>("txtChecks"), Qt::Key_Delete);
      EXPECT_FALSE(dialog.findChild<QPushButton*>("cmdSave")->isEnabled()) << text;
    });
    EXPECT_EQ(shown, "The number of check points must be a whole number from 0 to 100000.");
  }
}

TEST_F(Export, TakesThePreciseCoefficients) {
  test::store(test::Example("nist/filip").model, file("filip"));
  open("filip");
  click("cmdCompute");
  const SecondOpinion opinion = secondOpinionOn(model);
  const Fit precise = listedForm(opinion.precise);
  FormulaOptions options{.name = "filip", .within = {}};
  options.figures = fitFigures(opinion, model, precise);
  const std::string shown =
      previewAfter([](QDialog& dialog) { QTest::keyClick(dialog.findChild<QCheckBox*>("chkPrecise"), Qt::Key_Space); });
  EXPECT_EQ(shown, exportFormat("c")->write(model, precise, options));
  EXPECT_NE(shown, written("c", {.name = "filip", .within = {}}));
}

TEST_F(Export, OffersNoPreciseCoefficientsWhereThereAreNone) {
  Dimension twice = test::problem({{"x", {1, 1, 2}, 2, 0}});
  twice.Coef.redim(twice.Degree);
  twice.FitDone = true;
  test::store(twice, file("twice"));
  open("twice");
  const std::string shown =
      previewAfter([](QDialog& dialog) { EXPECT_FALSE(dialog.findChild<QCheckBox*>("chkPrecise")->isEnabled()); });
  EXPECT_THAT(shown, HasSubstr("The data determine no fit"));
}

TEST_F(Export, OfADistanceThatIsNoNumberGivesNothing) {
  fit();
  const std::string shown = previewAfter([](QDialog& dialog) {
    typeInto(dialog, "txtWithin", "0,1");
    EXPECT_FALSE(dialog.findChild<QPushButton*>("cmdCopy")->isEnabled());
    EXPECT_FALSE(dialog.findChild<QPushButton*>("cmdSave")->isEnabled());
  });
  EXPECT_EQ(shown, "The distance must be a number above 0.");
}

TEST_F(Export, SavesUnderTheNameThatIsChosen) {
  fit();
  previewAfter([this](QDialog& dialog) {
    choose(dialog, "Text");
    dialogs.expectAndType(pathOf("plane.txt"));
    clickOn(dialog, "cmdSave");
  });
  EXPECT_EQ(contentOf("plane.txt").toStdString(), written("text", {.name = "plane", .within = {}}));
}

TEST_F(Export, SavesAWorkbook) {
  fit();
  const std::string shown = previewAfter([this](QDialog& dialog) {
    choose(dialog, "Workbook");
    dialogs.expectAndType(pathOf("plane.xlsx"));
    clickOn(dialog, "cmdSave");
  });
  EXPECT_EQ(shown, "A workbook is saved to a file.");
  EXPECT_THAT(contentOf("plane.xlsx").toStdString(), StartsWith("PK"));
}

TEST_F(Export, TellsWhereItCannotSave) {
  fit();
  QString told;
  previewAfter([&](QDialog& dialog) {
    dialogs.expectAndType(pathOf("nowhere/plane.c"));
    dialogs.expectAndPress("OK", &told);
    clickOn(dialog, "cmdSave");
  });
  EXPECT_THAT(told.toStdString(), HasSubstr("cannot be saved"));
}

TEST_F(Export, OfResultsThatAreGoneSaysSo) {
  fit();
  enter("txtTerms(0)", "1");
  press(Qt::Key_Tab);
  ASSERT_FALSE(model.FitDone);
  QString told;
  dialogs.expectAndPress("OK", &told);
  press(Qt::Key_E, Qt::ControlModifier);
  EXPECT_EQ(told, "There is no fit to export: press Compute first.");
}

TEST_F(Export, AsATableCopiesPowersAndCoefficients) {
  fit();
  item("mnuCopyTable").trigger();
  const std::string table = clipboard();
  EXPECT_THAT(table, AllOf(StartsWith("x\ty\tcoefficient\n0\t0\t"), HasSubstr("\n2\t1\t")));
  EXPECT_EQ(std::count(table.begin(), table.end(), '\n'), 7);
}

}  // namespace
}  // namespace tavimor
