#pragma once

#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTreeWidget>

#include "ui/controls/help/help_viewer.h"
#include "ui/support/dialogs.h"

namespace tavimor {

/// Sixty paragraphs of this word and their number: several windows long.
QByteArray longText(const QByteArray& word);

/// The help window with a text of three pages, each several windows long, driven by keys and clicks.
class HelpViewerTest : public testing::Test {
 protected:
  HelpViewerTest();
  ~HelpViewerTest() override;

  QString write(const QString& name, const QByteArray& body) const;

  /// Shows the text at a page, and waits until the window has the keyboard.
  void show(const QString& page = {});

  template <class Control>
  Control& find(const char* name) {
    auto* control = viewer->findChild<Control*>(QLatin1String(name));
    if (control == nullptr) throw std::runtime_error("no control " + std::string(name));
    return *control;
  }

  QTextBrowser& page() { return find<QTextBrowser>("txtPage"); }
  QTreeWidget& contents() { return find<QTreeWidget>("tvwContents"); }
  QLineEdit& field() { return find<QLineEdit>("txtFind"); }
  std::string found() { return find<QLabel>("lblFound").text().toStdString(); }

  /// The text of the line at the top of the page in view, and the entry that is marked in the contents list.
  std::string top();
  std::string marked();

  void click(const char* button);
  void clickEntry(const QString& text);
  void clickLink(const QString& text);
  static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
  static void type(const QString& text);

  Dialogs dialogs;
  QTemporaryDir folder;
  QString path;
  QPointer<HelpViewer> viewer;
};

}  // namespace tavimor
