#include "model/entries.h"

namespace tavimor {

namespace {

// What has changed in a variable's block; empty where nothing has.
std::string changeOfBlock(const SpecFields& before, const SpecFields& now, const std::string& variable) {
  if (before.txtLL != now.txtLL) return "lower limit of " + variable;
  if (before.txtUL != now.txtUL) return "upper limit of " + variable;
  if (before.txtPoints != now.txtPoints)
    return "number of values of " + variable + ' ' + before.txtPoints + " -> " + now.txtPoints;
  if (before.txtTerms != now.txtTerms) return "degree of " + variable;
  if (before.txtExpansion != now.txtExpansion) return "centre of " + variable;
  if (before.chkSpaced != now.chkSpaced) return "equal spacing of " + variable;
  return {};
}

}  // namespace

SpecFields newSpecFields() { return {"0", "1", "1", "2", "*", true}; }

std::optional<Change> typedChange(const EntryTexts& before, const EntryTexts& now,
                                  const PerVariable<std::string>& names) {
  if (before.txtOrder != now.txtOrder) return Change{"number of variables", {}};
  if (before.txtVarNams != now.txtVarNams) return Change{"names", {}};
  for (Long k = 0; k < kMaxVariables; ++k) {
    const std::string change = changeOfBlock(before.fields[k], now.fields[k], names[k]);
    if (!change.empty()) return Change{change, k};
  }
  return std::nullopt;
}

}  // namespace tavimor
