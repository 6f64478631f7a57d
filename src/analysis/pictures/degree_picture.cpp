#include "analysis/pictures/degree_picture.h"

#include <algorithm>
#include <cmath>

#include "analysis/pictures/round_numbers.h"

namespace tavimor {

namespace {

bool hasDeviation(const DegreeCombination& one) { return one.statistics.s && *one.statistics.s > 0.0; }

Sheet sheetOf(std::span<const DegreeCombination> combinations) {
  Sheet sheet;
  const PerVariable<Long>& last = combinations.back().degrees;
  for (Long d = 0; d <= last[0]; ++d) sheet.x.push_back(d);
  for (Long d = 0; d <= last[1]; ++d) sheet.y.push_back(d);
  for (const DegreeCombination& one : combinations)
    sheet.values.push_back(hasDeviation(one) ? std::log10(*one.statistics.s) : NAN);
  return sheet;
}

}  // namespace

DegreePicture degreePicture(std::span<const DegreeCombination> combinations, Long lastVariable) {
  DegreePicture picture;
  for (std::size_t n = 0; n < combinations.size(); ++n) {
    const DegreeCombination& one = combinations[n];
    if (!hasDeviation(one)) {
      ++picture.leftOut;
      continue;
    }
    const DegreePoint point{static_cast<double>(one.statistics.terms), *one.statistics.s, n};
    (one.beaten ? picture.beaten : picture.best).push_back(point);
    if (one.recommended) picture.recommended.push_back(point);
  }
  std::sort(picture.best.begin(), picture.best.end(),
            [](const DegreePoint& a, const DegreePoint& b) { return a.terms < b.terms; });
  if (picture.best.empty() && picture.beaten.empty())
    picture.notShown = "No combination of degrees has a standard deviation to show.";
  else if (lastVariable == 1)
    picture.sheet = sheetOf(combinations);
  return picture;
}

std::string degreesText(const DegreeCombination& combination, Long lastVariable) {
  std::string text;
  for (Long k = 0; k <= lastVariable; ++k) text += (k > 0 ? ", " : "") + std::to_string(combination.degrees[k]);
  return text;
}

std::string degreePictureText(std::span<const DegreeCombination> combinations, Long lastVariable,
                              const DegreePicture& picture) {
  if (!picture.notShown.empty()) return picture.notShown;
  std::string text = "The standard deviation s of " + std::to_string(combinations.size()) +
                     " combinations of degrees against their numbers of coefficients.";
  const auto described = [&](std::size_t number) {
    const DegreeCombination& one = combinations[number];
    return degreesText(one, lastVariable) + " with " + std::to_string(one.statistics.terms) +
           " coefficients, s = " + shortNumber(one.statistics.s.value_or(0.0));
  };
  for (std::size_t n = 0; n < combinations.size(); ++n)
    if (combinations[n].recommended) text += " Recommended: " + described(n) + ".";
  if (!picture.best.empty()) text += " The least: " + described(picture.best.back().number) + ".";
  if (picture.leftOut > 0) text += " Without an s that can be shown: " + std::to_string(picture.leftOut) + ".";
  return text;
}

}  // namespace tavimor
