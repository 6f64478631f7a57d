#include "ui/controls/common_dialog.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "ui/support/dialogs.h"

namespace tavimor {
namespace {

class FileDialogs : public testing::Test {
 protected:
  QString pathOf(const char* name) { return folder.filePath(QLatin1String(name)); }

  QString makeFile(const char* name) {
    QFile file(pathOf(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    return file.fileName();
  }

  Dialogs dialogs;
  QTemporaryDir folder;
  CommonDialog dialog;
};

TEST_F(FileDialogs, OpenTakesAnExistingFile) {
  const QString path = makeFile("problem");
  dialogs.expectAndType(path);
  EXPECT_EQ(dialog.ShowOpen(), DialogEnd::Confirmed);
  EXPECT_EQ(dialog.FileName, path.toStdString());
}

TEST_F(FileDialogs, CallingOffKeepsTheEarlierName) {
  dialog.FileName = makeFile("problem").toStdString();
  dialogs.expectAndCancel();
  dialogs.expectAndCancel();
  EXPECT_EQ(dialog.ShowOpen(), DialogEnd::Cancelled);
  EXPECT_EQ(dialog.ShowSave(), DialogEnd::Cancelled);
  EXPECT_EQ(dialog.FileName, pathOf("problem").toStdString());
}

TEST_F(FileDialogs, SaveTakesANewNameAsItStands) {
  dialogs.expectAndType(pathOf("new"));
  EXPECT_EQ(dialog.ShowSave(), DialogEnd::Confirmed);
  EXPECT_EQ(dialog.FileName, pathOf("new").toStdString());
}

TEST_F(FileDialogs, SaveAsksBeforeItReplacesTheSpecification) {
  const QString path = makeFile("problem");
  QString question;
  dialogs.expectAndType(path);
  dialogs.expectAndPress(QStringLiteral("Yes"), &question);
  EXPECT_EQ(dialog.ShowSave(), DialogEnd::Confirmed);
  EXPECT_TRUE(question.contains(path)) << question.toStdString();
}

TEST_F(FileDialogs, SaveAsksBeforeItReplacesTheValuesAlone) {
  const QString values = makeFile("problem.dat");
  QString question;
  dialogs.expectAndType(pathOf("problem"));
  dialogs.expectAndPress(QStringLiteral("Yes"), &question);
  EXPECT_EQ(dialog.ShowSave(), DialogEnd::Confirmed);
  EXPECT_TRUE(question.contains(values)) << question.toStdString();
}

TEST_F(FileDialogs, SaveAsksForAnotherNameAfterNo) {
  dialogs.expectAndType(makeFile("problem"));
  dialogs.expectAndPress(QStringLiteral("No"));
  dialogs.expectAndType(pathOf("other"));
  EXPECT_EQ(dialog.ShowSave(), DialogEnd::Confirmed);
  EXPECT_EQ(dialog.FileName, pathOf("other").toStdString());
}

}  // namespace
}  // namespace tavimor
