#include <QDropEvent>
#include <QMimeData>

#include "formats/problem_writer.h"
#include "ui/support/main_window_test.h"

namespace tavimor {
namespace {

class Drop : public MainWindowTest {
 protected:
  // What a window system sends while something is dragged in. True where the window takes it.
  bool dragIn(QMimeData& data) {
    QDragEnterEvent enter(window->rect().center(), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QCoreApplication::sendEvent(window, &enter);
    return enter.isAccepted();
  }

  void letGo(QMimeData& data) {
    QDropEvent drop(window->rect().center(), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(window, &drop);
  }

  bool drop(QMimeData& data) {
    if (!dragIn(data)) return false;
    letGo(data);
    QCoreApplication::processEvents();
    return true;
  }

  bool dropFiles(const QStringList& names) {
    QMimeData data;
    QList<QUrl> places;
    for (const QString& name : names) places << QUrl::fromLocalFile(pathOf(name));
    data.setUrls(places);
    return drop(data);
  }

  void writeProblemNamed(const QString& name) {
    const Dimension problem = twoVariables();
    writeProblem(problem, problem, file(name));
  }

  void expectCreation() {
    dialogs.expect(
        [](QDialog& dialog) { QTest::mouseClick(dialog.findChild<QPushButton*>("cmdCreate"), Qt::LeftButton); });
  }
};

TEST_F(Drop, OpensAProblem) {
  writeProblemNamed("problem");
  EXPECT_TRUE(dropFiles({"problem"}));
  EXPECT_EQ(model.FileName, file("problem"));
  EXPECT_EQ(textOf("txtVarNams"), "x,y");
}

TEST_F(Drop, OpensAProblemByItsValues) {
  writeProblemNamed("problem");
  EXPECT_TRUE(dropFiles({"problem.dat"}));
  EXPECT_EQ(model.FileName, file("problem"));
}

TEST_F(Drop, ImportsATable) {
  writeFile("t.dat", "0,1\n1,2\n2,4\n");
  expectCreation();
  EXPECT_TRUE(dropFiles({"t.dat"}));
  EXPECT_EQ(model.LastPoint[0], 2);
  EXPECT_EQ(model.FileName, "");
}

TEST_F(Drop, ImportsText) {
  QMimeData data;
  data.setText("0\t1\n1\t2\n");
  expectCreation();
  EXPECT_TRUE(drop(data));
  EXPECT_EQ(model.LastPoint[0], 1);
}

TEST_F(Drop, AFileThatIsGoneIsTold) {
  writeFile("t", "0,1\n1,2\n");
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile(pathOf("t"))});
  ASSERT_TRUE(dragIn(data));
  letGo(data);
  QFile::remove(pathOf("t"));
  QString told;
  dialogs.expectAndPress("OK", &told);
  QCoreApplication::processEvents();
  EXPECT_EQ(told, "The table cannot be opened:\n\n" + pathOf("t") + "\n\nRun-time error '53': File not found");
}

TEST_F(Drop, TakesOneFileAtATime) {
  writeFile("a", "0,1\n1,2\n");
  writeFile("b", "0,1\n1,2\n");
  EXPECT_FALSE(dropFiles({"a", "b"}));
  EXPECT_FALSE(dropFiles({"none"}));
}

TEST_F(Drop, TakesNothingOnceThereIsAProblem) {
  writeProblemNamed("problem");
  declare("1", "x");
  EXPECT_FALSE(dropFiles({"problem"}));
}

}  // namespace
}  // namespace tavimor
