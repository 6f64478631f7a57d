#pragma once

#include <QTimer>

#include "ui/controls/form.h"

namespace tavimor {

/// From now on a polite request from outside to end the program unloads this form, the program's main one (see
/// Form::unloadFromOutside); one that has come already does so at once. `requests` is what watchEndRequests returned
/// (see platform/end_request.h).
void unloadOnEndRequest(Form& form, int requests);

/// While it lives such a request calls off the dialog that waits for an answer, for the time without a main form.
class CallsOffDialogs : public QTimer {
 public:
  CallsOffDialogs();
};

}  // namespace tavimor
