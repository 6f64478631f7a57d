#include "ui/controls/help/help_key.h"

#include <QApplication>
#include <QKeyEvent>

#include "ui/controls/help/help_viewer.h"

namespace tavimor {

namespace {

bool isHelpKey(QEvent& event) {
  return event.type() == QEvent::KeyPress && static_cast<QKeyEvent&>(event).matches(QKeySequence::HelpContents);
}

const Form* formOf(const QObject* object) {
  const auto* widget = qobject_cast<const QWidget*>(object);
  return widget == nullptr ? nullptr : qobject_cast<const Form*>(widget->window());
}

}  // namespace

HelpKey::HelpKey(std::function<void(const QString& form)> help) : help_(std::move(help)) {
  qApp->installEventFilter(this);
}

bool HelpKey::eventFilter(QObject* watched, QEvent* event) {
  if (!isHelpKey(*event)) return false;
  const Form* form = formOf(watched);
  if (form == nullptr || qobject_cast<const HelpViewer*>(form) != nullptr) return false;
  help_(form->objectName());
  return true;
}

}  // namespace tavimor
