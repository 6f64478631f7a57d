#pragma once

#include <string>

#include "formats/formulas/formula.h"

namespace tavimor {

/// The formula as a text in each language, ended by a line feed. A code text carries its check points and a check.
std::string cFormula(const Formula& formula);
std::string cppFormula(const Formula& formula);
std::string pythonFormula(const Formula& formula);
std::string fortranFormula(const Formula& formula);
std::string octaveFormula(const Formula& formula);
std::string rFormula(const Formula& formula);
std::string javascriptFormula(const Formula& formula);
std::string latexFormula(const Formula& formula);
std::string textFormula(const Formula& formula);

/// With the data of a section and of a surface through the middle of the grid.
std::string gnuplotFormula(const Formula& formula, const Problem& problem);

}  // namespace tavimor
