#include "ui/support/help_viewer_test.h"

#include <QFile>
#include <QPushButton>

namespace tavimor {

QByteArray longText(const QByteArray& word) {
  QByteArray text;
  for (int n = 0; n < 60; ++n) text += "<p>" + word + " " + QByteArray::number(n) + "</p>\n";
  return text;
}

HelpViewerTest::HelpViewerTest() {
  path = write(QStringLiteral("test.hlp"),
               "<h1>Beginning</h1>\n<p>See the <a href=\"#second\">other page</a> or "
               "<a href=\"https://www.tavimor.example\">the web</a>.</p>" +
                   longText("apple") + "<h1><a name=\"second\"></a>Second page</h1>" + longText("pear") +
                   "<h2>A section</h2>" + longText("plum") +
                   "<h1><a name=\"last\"></a>Last page</h1><p>A short one, \xC2\xB5 and pear.</p>");
}

HelpViewerTest::~HelpViewerTest() {
  if (viewer != nullptr) viewer->unload();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QString HelpViewerTest::write(const QString& name, const QByteArray& body) const {
  QFile file(folder.filePath(name));
  EXPECT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("<!DOCTYPE html><html><head><meta charset=\"utf-8\"></head><body>" + body + "</body></html>");
  return file.fileName();
}

void HelpViewerTest::show(const QString& anchor) {
  HelpViewer::showFile(path, anchor);
  viewer = Form::openForm<HelpViewer>();
  ASSERT_NE(viewer, nullptr);
  ASSERT_TRUE(QTest::qWaitForWindowActive(viewer));
}

std::string HelpViewerTest::top() {
  const QPoint place(0, page().fontMetrics().height() / 2);
  return page().cursorForPosition(place).block().text().toStdString();
}

std::string HelpViewerTest::marked() {
  return contents().currentItem() == nullptr ? "nothing" : contents().currentItem()->text(0).toStdString();
}

void HelpViewerTest::click(const char* button) { QTest::mouseClick(&find<QPushButton>(button), Qt::LeftButton); }

void HelpViewerTest::clickEntry(const QString& text) {
  const QList<QTreeWidgetItem*> items = contents().findItems(text, Qt::MatchExactly | Qt::MatchRecursive);
  ASSERT_EQ(items.size(), 1) << text.toStdString();
  contents().scrollToItem(items[0]);
  QTest::mouseClick(contents().viewport(), Qt::LeftButton, {}, contents().visualItemRect(items[0]).center());
}

void HelpViewerTest::clickLink(const QString& text) {
  QTextCursor cursor = page().document()->find(text);
  ASSERT_FALSE(cursor.isNull());
  cursor.setPosition(cursor.selectionStart() + 1);
  QTest::mouseClick(page().viewport(), Qt::LeftButton, {}, page().cursorRect(cursor).center());
}

void HelpViewerTest::press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}

void HelpViewerTest::type(const QString& text) { QTest::keyClicks(QApplication::focusWidget(), text); }

}  // namespace tavimor
