#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "model/fit.h"
#include "model/problem.h"
#include "model/spec_fields.h"
#include "runtime/file_steps.h"

namespace tavimor {

/// The number of variables and their names as they are being typed.
struct TypedNames {
  std::string txtOrder;
  std::string txtVarNams;
  bool isNumberGiven = false;

  bool operator==(const TypedNames&) const = default;
};

/// A problem as a session has it: the model, and the fields, whose texts may not have reached the model yet.
struct SessionProblem {
  Problem problem;
  Fit fit;  // its fitted values are not kept
  AllSpecFields fields;
  PerVariable<bool> numberIsOpen{};      // the number of values can still be typed
  std::string file;                      // where it was opened or saved; empty where that has not been
  std::optional<TypedNames> typedNames;  // as long as the names are not given: then there is nothing else
};

/// Whether both hold the same as far as a user has typed it: specifications, values, function. Results follow from
/// these, and so do equally spaced values.
bool haveSameWork(const SessionProblem& a, const SessionProblem& b);

/// What a list says of a kept problem.
struct KeptDescription {
  std::string file;
  std::vector<std::string> names;
  std::uint64_t points = 0;
  std::int64_t when = 0;  // seconds since the beginning of 1970, universal time
  std::string systemRun;  // in which it was kept (see platform/system_run.h); empty where that is not known
};

/// A kept problem stands in a folder of its own: the pair "problem" and "problem.dat", and "description.json". Where
/// the names are not given yet, there is no pair.
std::string keptPair(const std::string& folder);

/// Writes a problem into an empty folder, readable by its owner alone. Into the pair goes what the fields show, as far
/// as they can be read (see salvageSpecs); the description has their texts, and what a pair does not hold.
/// Errors: a RunTimeError with the path.
void writeKept(const SessionProblem& kept, const std::string& folder, std::int64_t when, FileSteps& steps);

/// Writes the description beside a pair that stands there already.
void describeKeptPair(const std::string& file, const std::string& folder, std::int64_t when, FileSteps& steps);

/// Reads it back, bit for bit but for the digits that a pair drops. A pair that was kept as it stood in its files comes
/// as it is opened.
/// Errors: as readProblem; a BadFile for the description.
SessionProblem readKept(const std::string& folder);

/// Errors: a RunTimeError where the system refuses the file, a BadFile where it is no description.
KeptDescription readDescription(const std::string& folder);

}  // namespace tavimor
