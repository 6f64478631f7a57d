#pragma once

namespace tavimor {

/// From now on a polite request to end (SIGTERM, SIGINT) does not kill the process: each makes a byte readable at the
/// descriptor that is returned. A signal that the program was started to ignore stays ignored.
/// Errors: -1, also where the system has no such signals.
int watchEndRequests();

}  // namespace tavimor
