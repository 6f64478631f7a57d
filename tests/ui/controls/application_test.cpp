#include "ui/controls/application.h"

#include <gtest/gtest.h>

#include <QIcon>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <new>

#include "runtime/run_time_error.h"
#include "ui/controls/form.h"
#include "ui/support/dialogs.h"

namespace tavimor {
namespace {

TEST(WindowIcon, BelongsToEveryWindowInTheSizesOfDesktops) {
  const QWidget window;
  for (const int size : {16, 24, 32, 48, 64, 128, 256}) {
    const QImage picture = window.windowIcon().pixmap(size).toImage();
    EXPECT_EQ(picture.size(), QSize(size, size));
    EXPECT_LT(picture.pixelColor(0, 0).alpha(), 20) << "the corners are round";
    EXPECT_GT(picture.pixelColor(size / 2, size / 8).blue(), 150) << "the ground is blue";
  }
}

TEST(WindowIcon, GoesWithTheDesktopEntryOfTheSameName) {
  EXPECT_EQ(QGuiApplication::desktopFileName(), QStringLiteral("tavimor"));
}

// A button whose event procedure fails, and an application whose ending is only noted.
class Dispatcher : public testing::Test {
 protected:
  Dispatcher() {
    application().setEnding([this](int exitCode) { endedWith.push_back(exitCode); });
    application().setProblemSaver([this](const std::string& path) {
      savedTo.push_back(path);
      if (savedTo.size() <= failingSaves) throw RunTimeError(ErrorNumber::PermissionDenied, path);
    });
  }

  ~Dispatcher() override {
    application().setEnding([](int) {});
    application().setProblemSaver({});
  }

  static Application& application() { return *static_cast<Application*>(qApp); }

  void clickAndFail(const std::function<void()>& failure) {
    QPushButton button(QStringLiteral("Fail"));
    QObject::connect(&button, &QPushButton::clicked, failure);
    button.show();
    QTest::mouseClick(&button, Qt::LeftButton);
  }

  QString folderFile(const char* name) { return folder.filePath(QLatin1String(name)); }

  Dialogs dialogs;
  QTemporaryDir folder;
  std::vector<int> endedWith;
  std::vector<std::string> savedTo;
  std::size_t failingSaves = 0;
};

TEST_F(Dispatcher, ReportsTheNumberAndTheDescriptionAndEnds) {
  QString text;
  dialogs.expectAndPress(QStringLiteral("End"), &text);
  clickAndFail([] { throw RunTimeError(ErrorNumber::SubscriptOutOfRange); });
  EXPECT_EQ(text, QStringLiteral("Run-time error '9':\n\nSubscript out of range"));
  EXPECT_EQ(endedWith, std::vector<int>{1});
  EXPECT_TRUE(savedTo.empty());
}

TEST_F(Dispatcher, ReportsThePathOfAFile) {
  QString text;
  dialogs.expectAndPress(QStringLiteral("End"), &text);
  clickAndFail([] { throw RunTimeError(ErrorNumber::DiskFull, "/data/ozone"); });
  EXPECT_EQ(text, QStringLiteral("Run-time error '61':\n\nDisk full\n/data/ozone"));
}

TEST_F(Dispatcher, ReportsWhatIsKnownBeyondTheDescriptionBelowIt) {
  QString text;
  dialogs.expectAndPress(QStringLiteral("End"), &text);
  clickAndFail([] { throw RunTimeError(ErrorNumber::DivisionByZero, {}, "variable \"x\" has a single value"); });
  EXPECT_EQ(text, QStringLiteral("Run-time error '11':\n\nDivision by zero\nvariable \"x\" has a single value"));
}

TEST_F(Dispatcher, ReportsThatMemoryHasRunOut) {
  QString text;
  dialogs.expectAndPress(QStringLiteral("End"), &text);
  clickAndFail([] { throw std::bad_alloc(); });
  EXPECT_EQ(text, QStringLiteral("Run-time error '7':\n\nOut of memory"));
}

TEST_F(Dispatcher, TheBoxIsCriticalAndHasTheProgramsTitle) {
  dialogs.expect([](QDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Tavimor"));
    EXPECT_EQ(dynamic_cast<QMessageBox&>(dialog).icon(), QMessageBox::Critical);
    QTest::keyClick(&dialog, Qt::Key_Escape);
  });
  dialogs.expectAndPress(QStringLiteral("Yes"));
  clickAndFail([] { throw RunTimeError(ErrorNumber::Overflow); });
  EXPECT_EQ(endedWith, std::vector<int>{1});
}

TEST_F(Dispatcher, SavesACopyAndEnds) {
  dialogs.expectAndPress(QStringLiteral("Save a copy..."));
  dialogs.expectAndType(folderFile("copy"));
  clickAndFail([] { throw RunTimeError(ErrorNumber::Overflow); });
  EXPECT_EQ(savedTo, std::vector<std::string>{folderFile("copy").toStdString()});
  EXPECT_EQ(endedWith, std::vector<int>{1});
}

TEST_F(Dispatcher, EnterSavesACopy) {
  dialogs.expect([](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Return); });
  dialogs.expectAndType(folderFile("copy"));
  clickAndFail([] { throw RunTimeError(ErrorNumber::Overflow); });
  EXPECT_EQ(savedTo.size(), 1U);
}

TEST_F(Dispatcher, EscapeAndTheTitleBarEndOnlyAfterASecondQuestion) {
  QString question;
  dialogs.expectAndCancel();
  dialogs.expect([&](QDialog& dialog) {
    question = dynamic_cast<QMessageBox&>(dialog).text();
    QTest::keyClick(&dialog, Qt::Key_Return);
  });
  dialogs.expect([](QDialog& dialog) { dialog.close(); });
  dialogs.expectAndCancel();
  dialogs.expectAndPress(QStringLiteral("End"));
  clickAndFail([] { throw RunTimeError(ErrorNumber::Overflow); });
  EXPECT_TRUE(question.endsWith(QStringLiteral("End the program?"))) << question.toStdString();
  EXPECT_EQ(endedWith, std::vector<int>{1});
}

TEST_F(Dispatcher, ARequestFromOutsideEndsWithoutASecondQuestion) {
  QPointer<Form> form = new Form(QStringLiteral("form"));
  dialogs.expect([&](QDialog& /*dialog*/) { form->unloadFromOutside(); });
  clickAndFail([] { throw RunTimeError(ErrorNumber::Overflow); });
  EXPECT_EQ(endedWith, std::vector<int>{1});
  EXPECT_TRUE(QTest::qWaitFor([&] { return form.isNull(); }));
}

TEST_F(Dispatcher, TheBoxComesBackWhereTheCopyFails) {
  failingSaves = 1;
  QString reason;
  dialogs.expectAndPress(QStringLiteral("Save a copy..."));
  dialogs.expectAndType(folderFile("copy"));
  dialogs.expectAndPress(QStringLiteral("OK"), &reason);
  dialogs.expectAndPress(QStringLiteral("Save a copy..."));
  dialogs.expectAndType(folderFile("second"));
  clickAndFail([] { throw RunTimeError(ErrorNumber::Overflow); });
  EXPECT_TRUE(reason.startsWith(QStringLiteral("Run-time error '70':"))) << reason.toStdString();
  EXPECT_EQ(savedTo.size(), 2U);
  EXPECT_EQ(endedWith, std::vector<int>{1});
}

TEST_F(Dispatcher, TheBoxComesBackWhereTheCopyIsCalledOff) {
  dialogs.expectAndPress(QStringLiteral("Save a copy..."));
  dialogs.expectAndCancel();
  dialogs.expectAndPress(QStringLiteral("End"));
  clickAndFail([] { throw RunTimeError(ErrorNumber::Overflow); });
  EXPECT_TRUE(savedTo.empty());
  EXPECT_EQ(endedWith, std::vector<int>{1});
}

}  // namespace
}  // namespace tavimor
