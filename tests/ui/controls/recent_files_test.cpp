#include "ui/controls/recent_files.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "ui/controls/state_folder.h"

namespace tavimor {
namespace {

class RecentFiles : public testing::Test {
 protected:
  RecentFiles() { qputenv("XDG_STATE_HOME", folder.filePath("state").toUtf8()); }
  ~RecentFiles() override { qputenv("XDG_STATE_HOME", before_); }

  QString make(const QString& name) {
    const QString path = folder.filePath(name);
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile made(path);
    EXPECT_TRUE(made.open(QIODevice::WriteOnly));
    return path;
  }

  QString add(const QString& name) {
    QString path = make(name);
    addRecentFile(path.toStdString());
    return path;
  }

  QTemporaryDir folder;

 private:
  QByteArray before_ = qgetenv("XDG_STATE_HOME");
};

TEST_F(RecentFiles, AreNoneAtFirst) { EXPECT_EQ(recentFiles(), QStringList()); }

TEST_F(RecentFiles, ComeNewestFirstAndOnce) {
  const QString a = add("a"), b = add("b");
  add("a");
  EXPECT_EQ(recentFiles(), QStringList({a, b}));
}

TEST_F(RecentFiles, AreTen) {
  for (int n = 0; n < 12; ++n) add(QString::number(n));
  EXPECT_EQ(recentFiles().size(), 10);
  EXPECT_EQ(recentFiles().first(), folder.filePath("11"));
}

TEST_F(RecentFiles, ThatAreGoneAreNotOffered) {
  const QString a = add("a"), b = add("b");
  QFile::remove(a);
  EXPECT_EQ(recentFiles(), QStringList(b));
}

TEST_F(RecentFiles, HaveTheirFolders) {
  add("one/a");
  add("two/b");
  add("one/c");
  EXPECT_EQ(recentFolders(), QStringList({folder.filePath("one"), folder.filePath("two")}));
}

TEST_F(RecentFiles, AreTheUsersAlone) {
  add("a");
  const QFile::Permissions others =
      QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup | QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
  EXPECT_EQ(QFile::permissions(QString::fromStdString(stateFolder())) & others, QFile::Permissions());
}

TEST_F(RecentFiles, BotherNobodyWhereTheyCannotBeKept) {
  make("state");  // a file in the folder's place
  add("a");
  EXPECT_EQ(recentFiles(), QStringList());
}

}  // namespace
}  // namespace tavimor
