#pragma once

#include <string>

namespace tavimor {

/// What a crash leaves behind where setCrashNote has said.
inline constexpr char kCrashNote[] = "crashed\n";

/// From now on a signal that tells of a fault of the program (SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT) leaves a note
/// before it takes its course. Nothing where the system has no such signals.
void watchCrashes();

/// Where a crash is noted from now on: in a file that is made then, for its owner's eyes alone; nowhere for an empty
/// path. What stands there already stays as it is. Not for two threads at once.
void setCrashNote(const std::string& path);

}  // namespace tavimor
