#pragma once

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "support/known_coefficients.h"

namespace tavimor::test {

/// A fit whose coefficients are known: an example about given centres.
struct KnownFit {
  const char* name;
  const char* example;
  const char* table;
  std::vector<std::string> centres;  // as typed; "*" is the middle of the interval
};

inline std::vector<KnownFit> knownFits() {
  return {
      {"OzoneAboutZero", "ozone", "nist_norris", {"0"}},
      {"OzoneAboutTheMiddle", "ozone", "nist_norris", {"*"}},
      {"LoadCellAboutZero", "load-cell", "nist_pontius", {"0"}},
      {"LoadCellAboutTheMiddle", "load-cell", "nist_pontius", {"*"}},
      {"FilipAboutZero", "nist/filip", "nist_filip", {"0"}},
      {"FilipAboutTheMiddle", "nist/filip", "nist_filip", {"*"}},
      {"Wampler1AboutZero", "nist/wampler1", "nist_wampler1", {"0"}},
      {"Wampler1AboutTheMiddle", "nist/wampler1", "nist_wampler1", {"*"}},
      {"Wampler2AboutZero", "nist/wampler2", "nist_wampler2", {"0"}},
      {"Wampler2AboutTheMiddle", "nist/wampler2", "nist_wampler2", {"*"}},
      {"Wampler3AboutZero", "nist/wampler3", "nist_wampler3", {"0"}},
      {"Wampler3AboutTheMiddle", "nist/wampler3", "nist_wampler3", {"*"}},
      {"Wampler4AboutZero", "nist/wampler4", "nist_wampler4", {"0"}},
      {"Wampler4AboutTheMiddle", "nist/wampler4", "nist_wampler4", {"*"}},
      {"Wampler5AboutZero", "nist/wampler5", "nist_wampler5", {"0"}},
      {"Wampler5AboutTheMiddle", "nist/wampler5", "nist_wampler5", {"*"}},
      {"HeatIndexAboutZero", "heat-index", "heat_index", {"0", "0"}},
      {"HeatIndexAboutTheMiddle", "heat-index", "heat_index", {"*", "*"}},
      {"SoundSpeedAboutItsCentres", "sound-speed", "mackenzie", {"0", "35", "0"}},
      {"SoundSpeedAboutTheMiddle", "sound-speed", "mackenzie", {"*", "*", "*"}},
  };
}

/// The example and the centres as the table of docs/numerics.md has them.
inline std::vector<std::string> firstCells(const KnownFit& fit) {
  std::string centres;
  for (const std::string& centre : fit.centres) centres += (centres.empty() ? "" : ", ") + centre;
  return {"`" + std::string(fit.example) + "`", "`" + centres + "`"};
}

/// The known coefficients of a table in powers about the centres of a model.
inline Coefficients knownAboutTheCentresOf(const Dimension& model, const std::string& table) {
  const PerVariable<double> given = table == "mackenzie" ? PerVariable<double>{0, 35, 0, 0} : PerVariable<double>{};
  Coefficients known = knownResult(table).coefficients;
  for (Long k = 0; k <= model.LastVar; ++k) known = expandedAbout(known, k, given[k], model.Centre[k]);
  return known;
}

/// The agreeing digits of the worst coefficient.
inline double worstDigits(const Dimension& model, const Coefficients& known) {
  double worst = 15.0;
  for (const auto& [j, coefficient] : known)
    worst = std::min(worst, agreeingDigits(model.Coef(j[0], j[1], j[2], j[3]), coefficient));
  return worst;
}

/// The certified sum of squared residuals: the certified standard deviation divides by the points less the terms.
/// Nothing where the table has none, or where it is 0.
inline std::optional<long double> certifiedResidualSum(const Dimension& model, const std::string& table) {
  const auto statistics = knownResult(table).statistics;
  const auto deviation = statistics.find("rsd");
  if (deviation == statistics.end() || deviation->second == 0) return std::nullopt;
  return deviation->second * deviation->second * (model.NumGridPoints - static_cast<Long>(model.Coef.size()));
}

}  // namespace tavimor::test
