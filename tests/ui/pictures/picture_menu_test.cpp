#include "ui/pictures/picture_menu.h"

#include <gmock/gmock.h>

#include <QClipboard>
#include <QDir>
#include <QMimeData>
#include <QTemporaryDir>
#include <QTest>

#include "analysis/pictures/pictured_fits.h"
#include "support/files.h"
#include "support/matches.h"
#include "ui/pictures/drawings.h"
#include "ui/support/dialogs.h"

namespace tavimor {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

class PictureMenu : public testing::Test {
 protected:
  void SetUp() override {
    addPictureMenu(picture);
    const auto fit = test::pictured(test::roughProblem(1));
    showSection(picture, fit, sectionOf(*fit, {}));
    picture.QWidget::show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&picture));
  }

  void press(Qt::Key key) {
    picture.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&picture));
    QTest::keyClick(&picture, key, Qt::ControlModifier);
  }

  QImage drawn() {
    QTest::qWait(50);  // the queued drawing
    return picture.grab().toImage();
  }

  QString pathOf(const QString& name) const { return folder.filePath(name); }
  std::string savedAs(const QString& name) const { return test::readBytes(pathOf(name).toStdString()); }
  QStringList files() const { return QDir(folder.path()).entryList(QDir::Files); }

  Dialogs dialogs;
  QTemporaryDir folder;
  Picture picture{QStringLiteral("picture")};
};

TEST_F(PictureMenu, CopiesPixelsAndDrawing) {
  press(Qt::Key_C);
  const QMimeData* copied = QGuiApplication::clipboard()->mimeData();
  ASSERT_NE(copied, nullptr);
  EXPECT_EQ(copied->imageData().value<QImage>().size(), QSize(1920, 1280));
  EXPECT_THAT(copied->data("image/svg+xml").toStdString(), HasSubstr("Section along x"));
}

TEST_F(PictureMenu, SavesInTheFormOfTheEnding) {
  const std::pair<const char*, const char*> forms[] = {{"a.png", "\x89PNG"}, {"b.svg", "<?xml"}, {"c.pdf", "%PDF"}};
  for (const auto& [name, beginning] : forms) {
    dialogs.expectAndType(pathOf(name));
    press(Qt::Key_S);
    EXPECT_THAT(savedAs(name), StartsWith(beginning));
  }
}

TEST_F(PictureMenu, ANameWithoutAnEndingBecomesAPng) {
  dialogs.expectAndType(pathOf("picture"));
  press(Qt::Key_S);
  EXPECT_THAT(savedAs("picture.png"), StartsWith("\x89PNG"));
}

TEST_F(PictureMenu, AnotherEndingIsRefusedInWords) {
  QString text;
  dialogs.expectAndType(pathOf("picture.gif"));
  dialogs.expectAndPress("OK", &text);
  press(Qt::Key_S);
  EXPECT_EQ(text.toStdString(), "A picture is saved as .png, .svg or .pdf.");
  EXPECT_THAT(files(), IsEmpty());
}

TEST_F(PictureMenu, WhatCannotBeWrittenIsToldWithItsPath) {
  QString text;
  dialogs.expectAndType(pathOf("picture.png"), [this] { folder.remove(); });
  dialogs.expectAndPress("OK", &text);
  press(Qt::Key_S);
  EXPECT_THAT(text.toStdString(), HasSubstr("Path not found\n" + pathOf("picture.png").toStdString()));
}

TEST_F(PictureMenu, ACancelledDialogWritesNothing) {
  dialogs.expectAndCancel();
  press(Qt::Key_S);
  dialogs.expectAndCancel();
  press(Qt::Key_P);
  EXPECT_THAT(files(), IsEmpty());
}

TEST_F(PictureMenu, PrintsOnePage) {
  dialogs.expectAndPrintTo(pathOf("paper.pdf"));
  press(Qt::Key_P);
  EXPECT_THAT(savedAs("paper.pdf"), StartsWith("%PDF"));
  EXPECT_THAT(test::allMatches(savedAs("paper.pdf"), "(/Type /Page)\\s"), SizeIs(1));
}

TEST_F(PictureMenu, ShowsAllAgain) {
  const QImage whole = drawn();
  QTest::keyClick(&picture, Qt::Key_Plus);
  EXPECT_NE(drawn(), whole);
  picture.findChild<QAction*>("mnuPictureAll")->trigger();
  EXPECT_EQ(drawn(), whole);
}

}  // namespace
}  // namespace tavimor
