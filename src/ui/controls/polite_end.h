#pragma once

#include "ui/controls/form.h"

namespace tavimor {

/// From now on a polite request from outside to end the program (see platform/end_request.h) unloads this form, the
/// program's main one (see Form::unloadFromOutside).
void unloadOnEndRequest(Form& form);

}  // namespace tavimor
