#include "ui/controls/polite_end.h"

#include <QApplication>
#include <QSocketNotifier>

#include "platform/end_request.h"

namespace tavimor {

void unloadOnEndRequest(Form& form, int requests) {
  if (requests < 0) return;
  auto* notifier = new QSocketNotifier(requests, QSocketNotifier::Read, &form);
  QObject::connect(notifier, &QSocketNotifier::activated, &form, [notifier, &form] {
    notifier->setEnabled(false);
    form.unloadFromOutside();
  });
}

CallsOffDialogs::CallsOffDialogs() {
  constexpr int kInterval = 50;  // milliseconds
  callOnTimeout([] {
    QWidget* dialog = QApplication::activeModalWidget();
    if (dialog != nullptr && endIsRequested()) dialog->close();
  });
  start(kInterval);
}

}  // namespace tavimor
