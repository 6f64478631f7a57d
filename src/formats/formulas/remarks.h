#pragma once

#include "formats/formulas/program_names.h"
#include "formats/formulas/program_text.h"

namespace tavimor {

/// What a language has to say for itself in the remarks.
struct LanguageNotes {
  Lines bits;   // when the function gives the bits of the Evaluations window
  Lines check;  // how its check is run; said where there are check points
};

/// The lines that stand at the head of a formula: what it is, the variables with their intervals, the statistics of the
/// fit, what rounding has changed, what happens outside the intervals, and the notes. No date, no version: the same
/// formula always has the same remarks. No line ends in a backslash or holds "/*", and a long name is cut.
Lines remarks(const Formula& formula, const ProgramNames& names, const LanguageNotes& notes);

}  // namespace tavimor
