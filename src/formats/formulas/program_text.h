#pragma once

#include <functional>
#include <string>
#include <vector>

#include "formats/formulas/formula.h"

namespace tavimor {

/// Pieces of program text that many languages share.

using Lines = std::vector<std::string>;
using Literal = std::function<std::string(double)>;

/// The lines, each behind `prefix` and ended by a line feed. Blanks at a line's end go.
std::string text(const Lines& lines, const std::string& prefix = {});

std::string joined(const Lines& items, const std::string& separator);

/// The items with commas between, as many on each line as 100 columns take.
Lines wrapped(const Lines& items, const std::string& indent);

/// The coefficients in their order in memory, the first variable's power fastest.
Lines literals(const Table4& table, const Literal& literal);

/// The coefficients as nested lists, the last variable outermost: coef[j1][j0]. No comma stands behind the last line.
Lines nestedLists(const Formula& formula, const std::string& open, const std::string& close, const Literal& literal,
                  const std::string& indent);

/// A check point as a row: the variables' values, the formula's and the bound of rounding.
Lines rowOf(const Formula& formula, const CheckPoint& check, const Literal& literal);

/// The rows of all check points, one behind the other.
Lines rowsOf(const Formula& formula, const Literal& literal);

/// Whether each variable is inside its interval, in the operators of most languages: "x >= 0.0", "x <= 1.0" ...
Lines insideTests(const Formula& formula, const Lines& names, const Literal& literal);

/// "x - 0.5", "x - (-2.0)"
std::string offset(const std::string& name, const std::string& centre);

}  // namespace tavimor
