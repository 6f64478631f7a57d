#pragma once

#include <optional>
#include <string>

#include "model/spec_fields.h"

namespace tavimor {

/// What a new block shows: the least specification that holds together, so that a variable nobody has looked at stands
/// in no one's way.
SpecFields newSpecFields();

/// The texts of all fields of the main window.
struct EntryTexts {
  std::string txtOrder;
  std::string txtVarNams;
  AllSpecFields fields{newSpecFields(), newSpecFields(), newSpecFields(), newSpecFields()};
};

/// How far a problem is declared; what has been left cannot be entered again.
enum class Stage { Start, NumberGiven, NamesGiven };

/// The fields of the main window, and which of them can still be entered.
struct Entries : EntryTexts {
  Stage stage = Stage::Start;
  PerVariable<bool> isNumberFixed{};  // the number of values changes by adding and deleting only
};

/// A change of the problem in a few words, such as "degree of x", and the variable that it concerns.
struct Change {
  std::string name;
  std::optional<Long> variable;
};

/// What a user has typed between two states of the texts: the first field that differs; nothing where none does.
std::optional<Change> typedChange(const EntryTexts& before, const EntryTexts& now,
                                  const PerVariable<std::string>& names);

}  // namespace tavimor
