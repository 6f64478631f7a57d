#pragma once

#include "formats/formulas/program_names.h"
#include "formats/formulas/program_text.h"

namespace tavimor {

/// How a language writes loops.
struct LoopSyntax {
  std::function<std::string(const std::string& name, const std::string& value)> declare;
  std::function<std::string(const std::string& name, const std::string& value)> assign;
  std::function<std::string(const std::string& power, Long degree)> open;  // from the degree down to 0
  std::string close;                                                       // empty: the indentation ends a loop
  std::string times = " * ";
  std::string zero = "0.0";
  Literal literal;

  /// The coefficient of the powers j[0], j[1] ...
  std::function<std::string(const Lines& j)> coefficient;
};

/// Horner's scheme in each variable, nested from the last variable outside to the first one inside:
///   s = 0, and for each power from the degree down to 0:  s = s * t + (the sum inside, or the coefficient).
/// Before it stand the offsets t from the centres; afterwards s of the last variable is the value. This is the order
/// of valueAt in engine/polynomial.h, so that the bits are the same wherever each operation rounds to a double.
Lines hornerLoops(const Formula& formula, const ProgramNames& names, const LoopSyntax& syntax,
                  const std::string& indent);

/// "coef[j1][j0]"
std::string lastOutermost(const std::string& coef, const Lines& j);

/// "j0, j1"
std::string firstOutermost(const Lines& j);

}  // namespace tavimor
