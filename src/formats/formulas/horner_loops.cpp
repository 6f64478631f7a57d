#include "formats/formulas/horner_loops.h"

#include <algorithm>

namespace tavimor {

namespace {

void append(Lines& lines, const Lines& more) { lines.insert(lines.end(), more.begin(), more.end()); }

class Writer {
 public:
  Writer(const Formula& formula, const ProgramNames& names, const LoopSyntax& syntax)
      : formula_(formula), names_(names), syntax_(syntax) {}

  Lines offsets(const std::string& indent) const {
    Lines lines;
    for (Long k = 0; k <= formula_.last(); ++k) {
      const std::string centre = syntax_.literal(formula_.variables[k].centre);
      lines.push_back(indent + syntax_.declare(names_.t[k], offset(names_.x[k], centre)));
    }
    return lines;
  }

  Lines level(Long k, const std::string& indent) const {
    Lines lines = {indent + syntax_.declare(names_.s[k], syntax_.zero),
                   indent + syntax_.open(names_.j[k], formula_.Coef.last()[k])};
    const std::string inner = indent + "  ";
    if (k > 0) append(lines, level(k - 1, inner));
    const std::string term = k > 0 ? names_.s[k - 1] : syntax_.coefficient(names_.j);
    lines.push_back(inner + syntax_.assign(names_.s[k], names_.s[k] + syntax_.times + names_.t[k] + " + " + term));
    if (!syntax_.close.empty()) lines.push_back(indent + syntax_.close);
    return lines;
  }

 private:
  const Formula& formula_;
  const ProgramNames& names_;
  const LoopSyntax& syntax_;
};

}  // namespace

Lines hornerLoops(const Formula& formula, const ProgramNames& names, const LoopSyntax& syntax,
                  const std::string& indent) {
  const Writer writer(formula, names, syntax);
  Lines lines = writer.offsets(indent);
  append(lines, writer.level(formula.last(), indent));
  return lines;
}

std::string lastOutermost(const std::string& coef, const Lines& j) {
  std::string text = coef;
  for (auto power = j.rbegin(); power != j.rend(); ++power) text += "[" + *power + "]";
  return text;
}

std::string firstOutermost(const Lines& j) { return joined(j, ", "); }

}  // namespace tavimor
