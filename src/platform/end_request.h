#pragma once

namespace tavimor {

/// From now on a polite request to end (SIGTERM, SIGINT, SIGHUP) does not kill the process: each makes a byte readable
/// at the descriptor that is returned. A signal that the program was started to ignore stays ignored. Errors: -1, also
/// where the system has no such signals.
int watchEndRequests();

/// Whether such a request has come since the last call of watchEndRequests. May be asked from any thread.
bool endIsRequested();

}  // namespace tavimor
