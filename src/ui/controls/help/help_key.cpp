#include "ui/controls/help/help_key.h"

#include <QApplication>
#include <QKeyEvent>

#include "ui/controls/help/help_viewer.h"

namespace tavimor {

namespace {

bool isHelpKey(QEvent& event) {
  return event.type() == QEvent::KeyPress && static_cast<QKeyEvent&>(event).matches(QKeySequence::HelpContents);
}

// A window of the program has a name; the toolkit's own dialogs and message boxes have none of this kind.
QString pageOf(const QObject* object) {
  const auto* widget = qobject_cast<const QWidget*>(object);
  if (widget == nullptr || qobject_cast<const HelpViewer*>(widget->window()) != nullptr) return {};
  const QString name = widget->window()->objectName();
  return name.startsWith(QLatin1String("frm")) ? name : QString();
}

}  // namespace

HelpKey::HelpKey(std::function<void(const QString& page)> help) : help_(std::move(help)) {
  qApp->installEventFilter(this);
}

bool HelpKey::eventFilter(QObject* watched, QEvent* event) {
  if (!isHelpKey(*event)) return false;
  const QString page = pageOf(watched);
  if (page.isEmpty()) return false;
  help_(page);
  return true;
}

}  // namespace tavimor
