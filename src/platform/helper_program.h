#pragma once

#include <optional>
#include <string>
#include <vector>

namespace tavimor {

/// The path of a program that comes with this one: beside it or, where both are installed, in ../libexec/tavimor.
/// Nothing where there is none.
std::optional<std::string> helperProgram(const std::string& name);

/// Runs a program to its end. Returns its exit status; -1 where it could not be started or was killed.
int runProgram(const std::string& program, const std::vector<std::string>& arguments);

}  // namespace tavimor
