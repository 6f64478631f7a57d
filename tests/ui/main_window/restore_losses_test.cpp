#include <QPlainTextEdit>

#include "platform/held_signals.h"
#include "support/files.h"
#include "support/stored.h"
#include "ui/data_windows/frmVars.h"
#include "ui/support/restore_test.h"

#ifndef _WIN32
#include <sys/resource.h>
#endif

namespace tavimor {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

// What a save has cost comes back, and what cannot be kept is told.
class RestoreLosses : public RestoreTest {
 protected:
  void save() { press(Qt::Key_S, Qt::ControlModifier); }

  // Saves "problem" with an upper limit of x, and has it open.
  void openSaved(double upper) {
    Dimension problem = twoVariables();
    problem.UpperLimit[0] = upper;
    test::store(problem, file("problem"));
    open("problem");
  }

  // Opens the latest pair that saves have replaced; they have replaced those of this file alone.
  void restoreReplacedPairOf(const QString& name) {
    restore("Open a copy", [&name](QDialog& dialog) {
      ASSERT_EQ(list(dialog).topLevelItemCount(), 1);
      EXPECT_EQ(list(dialog).topLevelItem(0)->text(0), name);
      list(dialog).setCurrentItem(list(dialog).topLevelItem(0)->child(0));
    });
  }

  // The upper limit of the first variable in the preview of what is listed as the N-th of the first file.
  static QString previewOfReplaced(QDialog& dialog, int n) {
    list(dialog).setCurrentItem(list(dialog).topLevelItem(0)->child(n));
    return dialog.findChild<QPlainTextEdit*>("txtPreview")->toPlainText();
  }
};

TEST_F(RestoreLosses, ThePairThatASaveAsReplacedWhenItWasCalledOff) {
  openSaved(5);
  enter("txtUL(0)", "9");
  dialogs.expectAndCancel();
  press(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
  activate();
  ASSERT_EQ(test::stored(file("problem")).UpperLimit[0], 9);
  startAnew();
  restoreReplacedPairOf("problem");
  EXPECT_EQ(textOf("txtUL(0)"), "5");
  EXPECT_EQ(model.FileName, "");
  EXPECT_EQ(test::stored(file("problem")).UpperLimit[0], 9);
}

TEST_F(RestoreLosses, ThePairFunctionThatASecondSaveAfterAnAdditionReplaced) {
  openSaved(5);
  dialogs.expectAndType("1");
  click("cmdAddVars(0)");
  ASSERT_TRUE(waitForKeyboard(*Form::openForm<frmVars>()));
  clickDone();
  save();
  EXPECT_EQ(test::stored(file("FUNCTION")).UpperLimit[0], 5);
  enter("txtUL(0)", "9");
  save();
  EXPECT_EQ(test::stored(file("FUNCTION")).UpperLimit[0], 9);
  EXPECT_EQ(test::stored(file("problem")).LastPoint[0], 2) << "the file that was opened";
  startAnew();
  restoreReplacedPairOf("FUNCTION");
  EXPECT_EQ(textOf("txtUL(0)"), "5");
  EXPECT_EQ(textOf("txtPoints(0)"), "4");
}

TEST_F(RestoreLosses, OfTheReplacedPairsOfAFileTheLastTen) {
  openSaved(100);
  for (int n = 101; n <= 112; ++n) {
    enter("txtUL(0)", QString::number(n));
    save();
  }
  restore("Close", [](QDialog& dialog) {
    ASSERT_EQ(list(dialog).topLevelItemCount(), 1);
    const QTreeWidgetItem* one = list(dialog).topLevelItem(0);
    EXPECT_EQ(one->text(0), "problem");
    ASSERT_EQ(one->childCount(), 10);
    EXPECT_EQ(one->child(0)->text(4), "replaced by a save");
    EXPECT_TRUE(previewOfReplaced(dialog, 0).contains("111"));
    EXPECT_TRUE(previewOfReplaced(dialog, 9).contains("102"));
  });
}

TEST_F(RestoreLosses, WhatALivingProgramKeepsIsNeitherListedNorTouched) {
  KeptSession living(stateFolder());
  SessionProblem other;
  other.problem = twoVariables();
  SetDisplayedSpecs(other.problem, other.fields);
  living.keep(other);
  typeProblem();
  startAnew();
  restore("Close", [](QDialog& dialog) {
    EXPECT_EQ(list(dialog).topLevelItemCount(), 1);
    EXPECT_EQ(list(dialog).topLevelItem(0)->text(1), "x");
    QTest::mouseClick(dialog.findChild<QPushButton*>("cmdRemove"), Qt::LeftButton);
    EXPECT_EQ(list(dialog).topLevelItemCount(), 0);
  });
  EXPECT_TRUE(living.hasKept());
  EXPECT_EQ(readKept(keptFolder().toStdString()).problem.VarName[1], "y");
}

// A file in the place of the folder stands for all that can be refused.
TEST_F(RestoreLosses, WhatCannotBeKeptIsToldOnceAndHindersNothing) {
  test::writeBytes(stateFolder(), "");
  typeProblem();
  EXPECT_TRUE(QTest::qWaitFor([this] { return status().find("cannot be kept") != std::string::npos; }));
  dialogs.expectAndType(pathOf("saved"));
  save();
  EXPECT_TRUE(QFile::exists(pathOf("saved.dat")));
}

#ifndef _WIN32

// As long as it lives no file can be written to: what a full disk does.
class FullDisk {
 public:
  FullDisk() {
    reportFileSizeLimitAsError();
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit nothing{0, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &nothing);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;
  ~FullDisk() { setrlimit(RLIMIT_FSIZE, &before_); }

 private:
  rlimit before_{};
};

TEST_F(RestoreLosses, AFullDiskIsToldOnceAndDisturbsNothing) {
  {
    const FullDisk fullDisk;
    typeProblem();
    EXPECT_TRUE(QTest::qWaitFor([this] { return status().find("cannot be kept") != std::string::npos; }));
    click("cmdCompute");
    EXPECT_TRUE(model.FitDone);
    typeValue("1", "8.5");
    QTest::qWait(2000);
    EXPECT_THAT(status(), Not(HasSubstr("cannot be kept")));
    EXPECT_EQ(model.F(1, 0, 0, 0), 8.5);
    EXPECT_THAT(keptFiles().filter("problem"), IsEmpty());
  }
  typeValue("2", "9.5");
  ASSERT_TRUE(QTest::qWaitFor([] { return keptFiles().contains("problem.dat"); }));
  startAnew();
  restore();
  EXPECT_THAT(std::vector<double>(model.F.data(), model.F.data() + 3), ElementsAre(7.5, 8.5, 9.5));
}

#endif

}  // namespace
}  // namespace tavimor
