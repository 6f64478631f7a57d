#pragma once

#include <QStringList>

#include "ui/controls/text_box.h"

namespace tavimor {

/// Writes down the focus events of text boxes as "name.Event", in the order in which they come.
struct EventLog {
  void watch(TextBox& box) {
    const QString name = box.objectName() + QLatin1Char('.');
    const auto note = [this, name](const char* event) { return [this, name, event] { events << name + event; }; };
    QObject::connect(&box, &TextBox::GotFocus, note("GotFocus"));
    QObject::connect(&box, &TextBox::LostFocus, note("LostFocus"));
    QObject::connect(&box, &TextBox::Change, note("Change"));
    QObject::connect(&box, &TextBox::Validate, note("Validate"));
  }

  /// What has come since the last call, joined with blanks.
  std::string take() {
    std::string text = events.join(QLatin1Char(' ')).toStdString();
    events.clear();
    return text;
  }

  QStringList events;
};

}  // namespace tavimor
