#pragma once

namespace tavimor {

/// From now on writing beyond the user's limit for the size of a file is an error of that writing, as on a full disk,
/// and ends no program.
void reportFileSizeLimitAsError();

/// Requests to end that would kill the process (SIGINT, SIGTERM, SIGHUP) and come while an object of this class lives:
/// the process ends when the last such object goes, so that work files can be tidied away first. A signal that the
/// program takes itself or ignores is left alone.
class HeldSignals {
 public:
  HeldSignals();
  HeldSignals(const HeldSignals&) = delete;
  HeldSignals& operator=(const HeldSignals&) = delete;
  ~HeldSignals();

  /// Whether a request has come that waits: work that takes long should give up then.
  static bool endIsRequested();
};

}  // namespace tavimor
