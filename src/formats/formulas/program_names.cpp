#include "formats/formulas/program_names.h"

#include "formats/formulas/program_text.h"

namespace tavimor {

ProgramNames programNames(const Formula& formula, std::string_view reserved, LetterCase letterCase) {
  Identifiers identifiers(reserved, letterCase);
  ProgramNames names;
  names.function = identifiers.make(formula.name, 'f');
  for (const FormulaVariable& variable : formula.variables) names.x.push_back(identifiers.make(variable.name, 'x'));
  for (Long k = 0; k <= formula.last(); ++k) {
    names.t.push_back(identifiers.make("t" + std::to_string(k), 't'));
    names.s.push_back(identifiers.make("s" + std::to_string(k), 's'));
    names.j.push_back(identifiers.make("n" + std::to_string(k), 'n'));
  }
  names.coef = identifiers.make(names.function + "_coef", 'c');
  names.points = identifiers.make(names.function + "_points", 'p');
  names.module = identifiers.make(names.function + "_module", 'm');
  names.check = identifiers.make(names.function + "_check", 'c');
  return names;
}

std::string ProgramNames::arguments() const { return joined(x, ", "); }

}  // namespace tavimor
