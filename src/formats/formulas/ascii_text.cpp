#include "formats/formulas/ascii_text.h"

#include <array>

#include "runtime/text.h"

namespace tavimor {

namespace {

struct Spelling {
  std::string_view letter;
  std::string_view ascii;
};

constexpr std::array kSpellings = std::to_array<Spelling>({
    {"Ä", "Ae"},     {"Ö", "Oe"},      {"Ü", "Ue"},      {"ä", "ae"},     {"ö", "oe"},    {"ü", "ue"},   {"ß", "ss"},
    {"à", "a"},      {"á", "a"},       {"â", "a"},       {"ã", "a"},      {"å", "a"},     {"æ", "ae"},   {"ç", "c"},
    {"è", "e"},      {"é", "e"},       {"ê", "e"},       {"ë", "e"},      {"ì", "i"},     {"í", "i"},    {"î", "i"},
    {"ï", "i"},      {"ñ", "n"},       {"ò", "o"},       {"ó", "o"},      {"ô", "o"},     {"õ", "o"},    {"ø", "o"},
    {"ù", "u"},      {"ú", "u"},       {"û", "u"},       {"ý", "y"},      {"ÿ", "y"},     {"À", "A"},    {"Á", "A"},
    {"Â", "A"},      {"Å", "A"},       {"Ç", "C"},       {"È", "E"},      {"É", "E"},     {"Ê", "E"},    {"Ñ", "N"},
    {"Ó", "O"},      {"Ô", "O"},       {"Ø", "O"},       {"Ú", "U"},      {"α", "alpha"}, {"β", "beta"}, {"γ", "gamma"},
    {"δ", "delta"},  {"ε", "epsilon"}, {"ζ", "zeta"},    {"η", "eta"},    {"θ", "theta"}, {"ι", "iota"}, {"κ", "kappa"},
    {"λ", "lambda"}, {"μ", "mu"},      {"µ", "mu"},      {"ν", "nu"},     {"ξ", "xi"},    {"π", "pi"},   {"ρ", "rho"},
    {"σ", "sigma"},  {"τ", "tau"},     {"υ", "upsilon"}, {"φ", "phi"},    {"χ", "chi"},   {"ψ", "psi"},  {"ω", "omega"},
    {"Γ", "Gamma"},  {"Δ", "Delta"},   {"Θ", "Theta"},   {"Λ", "Lambda"}, {"Ξ", "Xi"},    {"Π", "Pi"},   {"Σ", "Sigma"},
    {"Φ", "Phi"},    {"Ψ", "Psi"},     {"Ω", "Omega"},
});

std::string spelling(std::string_view character, char other) {
  if (character.size() == 1) return std::string(character);
  for (const Spelling& known : kSpellings)
    if (known.letter == character) return std::string(known.ascii);
  return std::string(1, other);
}

}  // namespace

std::string asciiText(std::string_view text, char other) {
  std::string ascii;
  while (!text.empty()) {
    const std::string_view character = firstCharacters(text, 1);
    ascii += spelling(character, other);
    text.remove_prefix(character.size());
  }
  return ascii;
}

}  // namespace tavimor
