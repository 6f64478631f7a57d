#include "ui/controls/window_places.h"

#include <QApplication>
#include <QEvent>

#include "ui/controls/form.h"
#include "ui/controls/remembered.h"

namespace tavimor {

namespace {

QString keyOf(const Form& form) { return QStringLiteral("places/") + form.objectName(); }

bool hasFixedSize(const Form& form) { return form.minimumSize() == form.maximumSize(); }

}  // namespace

WindowPlaces::WindowPlaces() { qApp->installEventFilter(this); }

// A form is polished once, before it is shown for the first time.
bool WindowPlaces::eventFilter(QObject* watched, QEvent* event) {
  const bool comes = event->type() == QEvent::Polish;
  const bool goes = event->type() == QEvent::Hide && !event->spontaneous();
  if (!comes && !goes) return false;
  auto* form = qobject_cast<Form*>(watched);
  if (form == nullptr || hasFixedSize(*form)) return false;
  if (comes)
    form->restoreGeometry(Remembered().value(keyOf(*form)).toByteArray());
  else
    Remembered().setValue(keyOf(*form), form->saveGeometry());
  return false;
}

}  // namespace tavimor
