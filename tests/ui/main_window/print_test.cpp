#include <gmock/gmock.h>

#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QMenu>

#include "report/report_lines.h"
#include "support/problem.h"
#include "support/stored.h"
#include "ui/controls/application.h"
#include "ui/support/main_window_test.h"
#include "ui/support/printed_pdf.h"

namespace tavimor {
namespace {

using test::Axis;
using testing::Contains;
using testing::Not;
using testing::StartsWith;
using Lines = std::vector<std::string>;

// A problem of the axes, its function a polynomial that a fit of degree 1 does not reproduce.
Dimension problemOf(const std::vector<Axis>& axes) {
  Dimension problem = test::problem(axes);
  test::tabulate(problem, [](double x, double y, double z, double w) { return 1 + x * x * y - 0.25 * z + 3 * w * x; });
  return problem;
}

std::vector<Axis> axes(int count) {
  const std::vector<Axis> all = {{"temperature", test::spaced(-2.5, 40, 9), 2, 0.5},
                                 {"p", test::spaced(0, 1, 5), 1, 0},
                                 {"Größe", {3, 4.25, 7}, 1, 5},
                                 {"w", {1, 2}, 1, -1e-7}};
  return {all.begin(), all.begin() + count};
}

class Print : public MainWindowTest {
 protected:
  void openProblem(const Dimension& problem) {
    test::store(problem, file("problem"));
    open("problem");
  }

  void printByKey() { press(Qt::Key_P, Qt::ControlModifier); }

  void printToFile() {
    dialogs.expectAndPrintTo(pdf);
    printByKey();
    activate();
  }

  /// What the command line's report command prints for the window's problem.
  Lines report() const {
    Dimension copy = model;
    return onPaper(test::linesOf([&](const LineSink& print) { reportLines(copy, copy, print); }));
  }

  Lines printed() const { return readPdf(pdf).lines(); }

  QString pdf = pathOf("report.pdf");
};

class PrintOfVariables : public Print, public testing::WithParamInterface<int> {};

TEST_P(PrintOfVariables, HasTheReportsLines) {
  openProblem(problemOf(axes(GetParam())));
  click("cmdCompute");
  ASSERT_TRUE(model.FitDone);
  printToFile();
  EXPECT_EQ(printed(), report());
  EXPECT_THAT(printed(), Contains(StartsWith("STANDARD ERROR OF ESTIMATE (UNBIASED)=")));
}

INSTANTIATE_TEST_SUITE_P(OneToFour, PrintOfVariables, testing::Range(1, 5));

TEST_F(Print, OfALongReportTakesSeveralPages) {
  openProblem(problemOf({{"x", test::spaced(0, 1, 40), 1, 0}, {"y", test::spaced(0, 1, 6), 1, 0}}));
  printToFile();
  EXPECT_EQ(readPdf(pdf).pages.size(), 5);
  EXPECT_EQ(printed(), report());
}

TEST_F(Print, IsInTheFileMenu) {
  openProblem(twoVariables());
  dialogs.expectAndPrintTo(pdf);
  press(Qt::Key_F, Qt::AltModifier);
  ASSERT_NE(QApplication::activePopupWidget(), nullptr);
  QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_P);
  EXPECT_EQ(printed(), report());
}

TEST_F(Print, ContinuesALongTermBelowItsBeginning) {
  const std::string first(40, 'n'), second(40, 'm'), indent(26, ' ');
  openProblem(problemOf({{first, {1, 2, 3}, 1, 1.5}, {second, {1, 2}, 1, -2}}));
  click("cmdCompute");
  printToFile();
  const Lines lines = printed();
  const auto continued = std::find(lines.begin(), lines.end(), indent + "*(" + second + "+2)");
  ASSERT_NE(continued, lines.end());
  EXPECT_EQ((continued - 1)->substr(24), "*(" + first + "-1.5)");
}

TEST_F(Print, WithoutAFitHasNoStatistics) {
  openProblem(twoVariables());
  printToFile();
  EXPECT_EQ(printed(), report());
  EXPECT_THAT(printed(), Not(Contains("COEFFICIENTS:")));
}

TEST_F(Print, AfterASingularFitHasNoStatistics) {
  openProblem(problemOf({{"x", {1, 1}, 1, 0}}));
  click("cmdCompute");
  EXPECT_EQ(listing(), "YIELDS SINGULAR MATRIX.\n");
  printToFile();
  EXPECT_EQ(printed(), report());
  EXPECT_THAT(printed(), Not(Contains("COEFFICIENTS:")));
}

TEST_F(Print, CalledOffPrintsNothing) {
  openProblem(twoVariables());
  window->printer.FontName = "Sans";
  const QStringList before = QDir(folder.path()).entryList(QDir::Files);
  dialogs.expectAndCancel();
  printByKey();
  EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), before);
  EXPECT_EQ(window->printer.FontName, "Sans");
  activate();
  printToFile();
  EXPECT_EQ(printed(), report());
}

TEST_F(Print, HasItsFontAndTheFieldsBeforeTheDialogShows) {
  openProblem(twoVariables());
  window->printer.FontName = "Sans";
  enter("txtUL(0)", "5");
  std::string fontName;
  double limit = 0;
  dialogs.expectAndPrintTo(pdf, [&] {
    fontName = window->printer.FontName;
    limit = model.UpperLimit[0];
  });
  printByKey();
  EXPECT_EQ(fontName, "Courier New");
  EXPECT_EQ(limit, 5);
  EXPECT_EQ(window->printer.FontName, "Sans");
  EXPECT_THAT(printed(), Contains("           INTERVAL: [ 0 , 5 ]"));
}

TEST_F(Print, RemembersTheFileForTheNextReport) {
  openProblem(twoVariables());
  printToFile();
  QString shown, question;
  dialogs.expect([&](QDialog& dialog) {
    shown = dialog.findChild<QLineEdit*>("filename")->text();
    QTest::keyClick(&dialog, Qt::Key_Return);
  });
  dialogs.expectAndPress("Yes", &question);
  printByKey();
  EXPECT_EQ(shown, pdf);
  EXPECT_TRUE(question.contains(pdf)) << question.toStdString();
}

TEST_F(Print, IsNamedAfterTheProblem) {
  openProblem(twoVariables());
  printToFile();
  EXPECT_EQ(readPdf(pdf).title, "problem");
}

TEST_F(Print, OfAProblemWithoutAFileIsNamedAfterTheProgram) {
  declare("1", "x");
  specify(0, "0", "1", "3", "1");
  printToFile();
  EXPECT_EQ(readPdf(pdf).title, "Tavimor");
  EXPECT_EQ(printed(), report());
}

// Run-time errors are reported in a box, and the program then ends.
class PrintError : public Print {
 protected:
  PrintError() {
    application().setEnding([this](int exitCode) { endedWith.push_back(exitCode); });
    window->printer.FontName = "Sans";
  }
  ~PrintError() override {
    application().setEnding([](int) {});
  }

  void expectEnd(const QString& error) {
    EXPECT_EQ(text, error);
    EXPECT_EQ(endedWith, std::vector<int>{1});
    EXPECT_EQ(window->printer.FontName, "Sans");
    window->printer.EndDoc();  // of a document of which nothing may be left
    EXPECT_FALSE(QFile::exists(pdf));
  }

  std::vector<int> endedWith;
  QString text;

 private:
  static Application& application() { return *static_cast<Application*>(qApp); }
};

TEST_F(PrintError, WhereTheFourthVariableHasMoreValuesThanTheThird) {
  openProblem(problemOf({{"x", {1, 2}, 0, 0}, {"y", {1, 2}, 0, 0}, {"z", {3, 4}, 0, 0}, {"w", {5, 6, 7}, 0, 0}}));
  dialogs.expectAndPrintTo(pdf);
  dialogs.expectAndPress("End", &text);
  printByKey();
  expectEnd("Run-time error '9':\n\nSubscript out of range\nvariable \"z\" has no value 2");
}

TEST_F(PrintError, WhereTheSpecificationsCannotBeCaptured) {
  openProblem(problemOf({{"x", {1}, 0, 0}}));
  dialogs.expectAndPress("End", &text);
  printByKey();
  expectEnd("Run-time error '11':\n\nDivision by zero\nvariable \"x\" has a single value");
}

TEST_F(PrintError, WhereTheFolderIsGoneWhenTheReportIsWritten) {
  openProblem(twoVariables());
  QDir(folder.path()).mkdir("gone");
  pdf = pathOf("gone/report.pdf");
  dialogs.expectAndPrintTo(pdf, [this] {
    QObject::connect(qobject_cast<QDialog*>(QApplication::activeModalWidget()), &QDialog::accepted,
                     [this] { QDir(folder.path()).rmdir("gone"); });
  });
  dialogs.expectAndPress("End", &text);
  printByKey();
  expectEnd("Run-time error '482':\n\nPrinter error\n" + pdf);
}

}  // namespace
}  // namespace tavimor
