#include "analysis/pictures/section.h"

#include <algorithm>
#include <cmath>

#include "analysis/orthonormal_values.h"
#include "analysis/pictures/round_numbers.h"
#include "runtime/number_text.h"

namespace tavimor {

namespace {

constexpr std::size_t kPoints = 401;

FittedFunction heldBut(const FittedFunction& function, Long variable, const PerVariable<double>& at) {
  FittedFunction line = function;
  for (Long k = 0; k < kMaxVariables; ++k)
    if (k != variable) line = line.heldAt(k, at[k]);
  return line;
}

// A twentieth beyond either end, to see where the fit goes from there.
std::vector<double> abscissas(const ShownRange& range) {
  const double margin = range.upper / 20 - range.lower / 20;
  return spacedOver({range.lower - margin, range.upper + margin}, kPoints);
}

bool isWithin(const ShownRange& range, double x) { return range.lower <= x && x <= range.upper; }

void addBands(const ShownFit& fit, const Section& section, SectionCurve& curve) {
  if (!fit.exact || !fit.reach || fit.residualsAreZero) return;
  const PerVariable<AxisBasis>& axis = fit.analysis->opinion.decomposition.axis;
  double ofOthers = 1.0;
  for (Long k = 0; k <= fit.problem().LastVar; ++k)
    if (k != section.variable) ofOthers *= orthonormalAt(axis[k], typedValue(curve.at[k])).norm;
  for (std::size_t n = 0; n < section.x.size(); ++n) {
    const double spread = ofOthers * orthonormalAt(axis[section.variable], typedValue(section.x[n])).norm;
    const double ofMean = *fit.reach * spread, ofOneMore = *fit.reach * std::sqrt(1 + spread * spread);
    curve.low.push_back(curve.value[n] - ofMean);
    curve.high.push_back(curve.value[n] + ofMean);
    curve.predictionLow.push_back(curve.value[n] - ofOneMore);
    curve.predictionHigh.push_back(curve.value[n] + ofOneMore);
  }
}

void addGiven(const Problem& problem, const Section& section, SectionCurve& curve) {
  for (Long k = 0; k <= problem.LastVar; ++k) {
    if (k == section.variable) continue;
    const std::optional<Long> index = gridIndexOf(problem, k, curve.at[k]);
    if (!index) return;
    curve.heldIndex[k] = *index;
  }
  curve.isOnGrid = true;
  const std::span<const double> values = gridValues(problem, section.variable);
  const std::size_t first = gridNumberOf(problem.F.last(), curve.heldIndex);
  const std::size_t stride = problem.F.stride(static_cast<int>(section.variable));
  curve.given = thinnedPoints(
      values.size(), [&](std::size_t i) { return values[i]; },
      [&](std::size_t i) { return problem.F.data()[first + i * stride]; });
}

// What is worth seeing decides what is in view: not how far an extrapolation goes.
void widen(Section& section, const std::vector<double>& values) {
  for (std::size_t n = 0; n < values.size(); ++n)
    if (isWithin(section.interval, section.x[n]) && std::isfinite(values[n])) {
      section.least = std::min(section.least, values[n]);
      section.largest = std::max(section.largest, values[n]);
    }
}

void findRange(Section& section) {
  section.least = INFINITY;
  section.largest = -INFINITY;
  for (const SectionCurve& curve : section.curves) {
    for (const auto* values : {&curve.value, &curve.low, &curve.high}) widen(section, *values);
    for (const PicturePoint& point : curve.given) {
      section.least = std::min(section.least, point.y);
      section.largest = std::max(section.largest, point.y);
    }
  }
}

// The listed fit is drawn beside the exact one where they are a part of the picture apart that an eye can tell.
void addListed(const ShownFit& fit, Section& section) {
  constexpr double kTellable = 1.0 / 300;
  if (!fit.exact || !fit.listed) return;
  const double tellable = kTellable * (section.largest - section.least);
  for (SectionCurve& curve : section.curves) {
    std::vector<double> listed = heldBut(*fit.listed, section.variable, curve.at).along(section.variable, section.x);
    for (std::size_t n = 0; n < listed.size(); ++n)
      if (isWithin(section.interval, section.x[n]) && !(std::fabs(listed[n] - curve.value[n]) <= tellable)) {
        curve.listed = std::move(listed);
        break;
      }
  }
}

SectionCurve curveOf(const ShownFit& fit, const Section& section, const PerVariable<double>& at) {
  SectionCurve curve;
  curve.at = at;
  curve.value = heldBut(fit.function(), section.variable, at).along(section.variable, section.x);
  addBands(fit, section, curve);
  addGiven(fit.problem(), section, curve);
  return curve;
}

}  // namespace

Section sectionOf(const ShownFit& fit, const SectionChoice& choice) {
  const Problem& problem = fit.problem();
  Section section;
  section.variable = choice.variable;
  section.notShown = noFitText(fit);
  if (!section.notShown.empty()) return section;
  const ShownRange range = shownRange(problem, choice.variable);
  if (!range.isFinite()) {
    section.notShown = "The values of " + problem.VarName[choice.variable] + " are not all finite numbers.";
    return section;
  }
  section.interval = intervalOf(problem, choice.variable);
  if (section.interval.lower == section.interval.upper) section.interval = range;
  section.x = abscissas(range);
  section.familyVariable = choice.familyVariable;
  if (!choice.familyVariable) {
    section.curves.push_back(curveOf(fit, section, choice.at));
  } else {
    for (const double value : choice.familyValues) {
      PerVariable<double> at = choice.at;
      at[*choice.familyVariable] = value;
      section.curves.push_back(curveOf(fit, section, at));
    }
  }
  findRange(section);
  if (!(section.least <= section.largest)) section.notShown = "The fit has no finite value here.";
  addListed(fit, section);
  return section;
}

namespace {

PerVariable<bool> heldVariables(const Problem& problem, const Section& section) {
  PerVariable<bool> held{};
  for (Long k = 0; k <= problem.LastVar; ++k) held[k] = k != section.variable;
  return held;
}

std::string curveText(const ShownFit& fit, const Section& section, const SectionCurve& curve) {
  const Problem& problem = fit.problem();
  const std::string& name = problem.VarName[section.variable];
  const std::string at = pointText(problem, curve.at, heldVariables(problem, section));
  const auto isInside = [&](double x) { return isWithin(section.interval, x); };
  const auto first = std::find_if(section.x.begin(), section.x.end(), isInside) - section.x.begin();
  const auto last = section.x.rend() - std::find_if(section.x.rbegin(), section.x.rend(), isInside) - 1;
  const auto [least, largest] = std::minmax_element(curve.value.begin() + first, curve.value.begin() + last + 1);
  std::string text = at.empty() ? "" : "At " + at + ": ";
  const auto valueAtPlace = [&](auto place) {
    return shortNumber(curve.value[place]) + " at " + name + " = " + shortNumber(section.x[place]);
  };
  text += valueAtPlace(first) + ", " + valueAtPlace(last);
  text += ", least " + valueAtPlace(least - curve.value.begin()) + ", largest " +
          valueAtPlace(largest - curve.value.begin());
  return text +
         (curve.isOnGrid ? ", " + std::to_string(curve.given.size()) + " given values shown." : ", off the grid.");
}

}  // namespace

std::string sectionText(const ShownFit& fit, const Section& section) {
  if (!section.notShown.empty()) return section.notShown;
  std::string text = "The fit along " + fit.problem().VarName[section.variable] + " from " +
                     shortNumber(section.interval.lower) + " to " + shortNumber(section.interval.upper) + ".";
  for (const SectionCurve& curve : section.curves) text += " " + curveText(fit, section, curve);
  const std::string percent = numberText(100 * fit.analysis->level) + " %";
  if (section.hasBands()) text += " With bands of " + percent + " for the mean and for one more value.";
  if (fit.residualsAreZero) text += " The residuals are 0 as far as can be told: there are no bands.";
  for (const SectionCurve& curve : section.curves)
    if (!curve.listed.empty()) return text + " The listed fit, which has few right digits, is drawn dashed.";
  return text;
}

}  // namespace tavimor
