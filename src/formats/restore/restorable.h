#pragma once

#include <string>
#include <vector>

#include "formats/restore/kept_session.h"

namespace tavimor {

/// What a kept problem is: one that a session left unsaved, or a pair that a save has replaced.
enum class KeptKind { Unsaved, Replaced };

/// A problem that can be had again, by readKept of its folder.
struct Restorable {
  KeptKind kind = KeptKind::Unsaved;
  std::string folder;
  KeptDescription description;
  SessionEnd end = SessionEnd::Unknown;  // Unsaved: how its session has ended
};

/// All that can be had again: first what dead sessions left unsaved, the latest first; then the replaced pairs, those
/// of a file together and the latest first. What living sessions keep is not listed. What dead sessions have left that
/// is nothing to restore goes on the way. Errors: none; what cannot be read is not listed.
std::vector<Restorable> restorableProblems(const std::string& stateFolder);

/// Whether a dead session has left an unsaved problem.
bool hasUnsavedProblems(const std::string& stateFolder);

/// Removes it for good.
void removeRestorable(const Restorable& restorable);

}  // namespace tavimor
