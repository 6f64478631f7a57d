#include "ui/controls/polite_end.h"

#include <QSocketNotifier>

#include "platform/end_request.h"

namespace tavimor {

void unloadOnEndRequest(Form& form) {
  const int requests = watchEndRequests();
  if (requests < 0) return;
  auto* notifier = new QSocketNotifier(requests, QSocketNotifier::Read, &form);
  QObject::connect(notifier, &QSocketNotifier::activated, &form, [notifier, &form] {
    notifier->setEnabled(false);
    form.unloadFromOutside();
  });
}

}  // namespace tavimor
