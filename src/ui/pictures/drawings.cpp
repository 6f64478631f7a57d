#include "ui/pictures/drawings.h"

#include <cmath>
#include <utility>

#include "analysis/pictures/round_numbers.h"
#include "ui/pictures/canvas.h"

namespace tavimor {

namespace {

QString shown(const std::string& text) { return QString::fromStdString(text); }
QString nameOf(const Problem& problem, Long k) { return shown(problem.VarName[k]); }

QColor faint(QColor colour, int alpha) {
  colour.setAlpha(alpha);
  return colour;
}

std::string heldText(const Problem& problem, const PerVariable<double>& at, const PerVariable<bool>& isShown) {
  PerVariable<bool> named{};
  for (Long k = 0; k <= problem.LastVar; ++k) named[k] = !isShown[k];
  const std::string text = pointText(problem, at, named);
  return text.empty() ? text : " at " + text;
}

void drawCurve(Panel& panel, const Theme& theme, const Section& section, std::size_t number, const QString& legend) {
  const SectionCurve& curve = section.curves[number];
  const QColor colour = theme.curve(number);
  if (section.hasBands()) {
    panel.band(section.x, curve.predictionLow, curve.predictionHigh, faint(colour, 30));
    panel.band(section.x, curve.low, curve.high, faint(colour, 80));
  }
  panel.line(section.x, curve.value, QPen(colour, 2.0), legend);
  if (!curve.listed.empty())
    panel.line(section.x, curve.listed, QPen(theme.warning, 1.5, Qt::DashLine), QStringLiteral("listed fit"));
}

void drawSection(Canvas& canvas, const Problem& problem, const Section& section) {
  Panel& panel = canvas.panel(0, 0, {nameOf(problem, section.variable), {section.x.front(), section.x.back()}},
                              {QStringLiteral("function"), {section.least, section.largest}});
  panel.shade(2 * section.x.front() - section.x.back(), section.interval.lower);
  panel.shade(section.interval.upper, 2 * section.x.back() - section.x.front());
  for (std::size_t n = 0; n < section.curves.size(); ++n) {
    QString legend = QStringLiteral("fit");
    if (section.familyVariable)
      legend = nameOf(problem, *section.familyVariable) + QStringLiteral(" = ") +
               shown(shortNumber(section.curves[n].at[*section.familyVariable]));
    drawCurve(panel, canvas.theme(), section, n, legend);
  }
  for (std::size_t n = 0; n < section.curves.size(); ++n) {
    const SectionCurve& curve = section.curves[n];
    std::vector<PicturePoint> given = curve.given;
    PerVariable<Long> index = curve.heldIndex;
    for (PicturePoint& point : given) {
      index[section.variable] = static_cast<Long>(point.number);
      point.number = gridNumberOf(problem.F.last(), index);
    }
    panel.points(given, section.curves.size() == 1 ? canvas.theme().given : canvas.theme().curve(n), 5.0);
  }
  const bool hasListed = !section.curves.empty() && !section.curves.front().listed.empty();
  if (section.familyVariable || hasListed) canvas.legend(panel);
}

// One label a line, where it is long enough to carry it.
void drawContours(Panel& panel, const Theme& theme, const std::vector<ContourLine>& contours) {
  constexpr std::size_t kCarries = 25;
  for (const ContourLine& line : contours) panel.curve(line.x, line.y, QPen(theme.contour, 1.2));
  for (const ContourLine& line : contours)
    if (const std::size_t middle = line.x.size() / 2; line.x.size() >= kCarries)
      panel.text(line.x[middle], line.y[middle], shown(shortNumber(line.level)));
}

// Nothing for a grid point where other values are held.
std::optional<PicturePoint> placeInMap(const Problem& problem, const MapChoice& choice, std::size_t number) {
  const PerVariable<Long> index = gridIndexAt(problem.F.last(), number);
  const auto valueOf = [&](Long k) { return gridValues(problem, k)[static_cast<std::size_t>(index[k])]; };
  for (Long k = 0; k <= problem.LastVar; ++k)
    if (k != choice.x && k != choice.y && valueOf(k) != choice.at[k]) return std::nullopt;
  return PicturePoint{valueOf(choice.x), valueOf(choice.y), number};
}

void drawMap(Canvas& canvas, const Problem& problem, const MapChoice& choice, const SurfaceMap& map) {
  const ShownRange x{map.sheet.x.front(), map.sheet.x.back()}, y{map.sheet.y.front(), map.sheet.y.back()};
  Panel& panel = canvas.panel(0, 0, {nameOf(problem, choice.x), x}, {nameOf(problem, choice.y), y});
  canvas.colours(panel, map.sheet, map.scale, map.range, shown(mapQuantity(choice.of)));
  panel.points(map.points, map.scale == ColourScale::Values ? QColor(255, 255, 255, 170) : QColor(0, 0, 0, 120), 3.0);
  panel.findMore([&problem, choice](std::size_t number) { return placeInMap(problem, choice, number); });
  drawContours(panel, canvas.theme(), map.contours);
}

ShownRange rangeOfY(const std::vector<PicturePoint>& points) {
  ShownRange range{INFINITY, -INFINITY};
  for (const PicturePoint& point : points) range = {std::min(range.lower, point.y), std::max(range.upper, point.y)};
  return range;
}

ShownRange rangeOfX(const std::vector<PicturePoint>& points) {
  ShownRange range{INFINITY, -INFINITY};
  for (const PicturePoint& point : points) range = {std::min(range.lower, point.x), std::max(range.upper, point.x)};
  return range;
}

const QString kResidual = QStringLiteral("residual");
constexpr int kFewNumbers = 3;  // along an axis of a small panel

Panel& drawCloud(Canvas& canvas, int row, int column, const QString& name, const std::vector<PicturePoint>& points) {
  constexpr std::size_t kMany = 2000;
  Panel& panel = canvas.panel(row, column, {name, rangeOfX(points), kFewNumbers}, {kResidual, rangeOfY(points)});
  panel.points(points, faint(canvas.theme().curve(0), points.size() > kMany ? 120 : 220),
               points.size() > kMany ? 2.5 : 5.0);
  return panel;
}

void drawClouds(Canvas& canvas, const ShownFit& fit, const ResidualPictures& residuals, Long k) {
  const auto residualOf = [&fit](std::size_t number) { return fit.residual.data()[number]; };
  drawCloud(canvas, 0, 0, QStringLiteral("fitted value"), residuals.againstFitted)
      .findMore([&fit, residualOf](std::size_t number) {
        const double residual = residualOf(number);
        return PicturePoint{fit.problem().F.data()[number] - residual, residual, number};
      });
  drawCloud(canvas, 0, 1, nameOf(fit.problem(), k), residuals.againstVariable[k])
      .findMore([&fit, residualOf, k](std::size_t number) {
        const auto i = static_cast<std::size_t>(gridIndexAt(fit.problem().F.last(), number)[k]);
        return PicturePoint{gridValues(fit.problem(), k)[i], residualOf(number), number};
      });
}

void drawHistogram(Canvas& canvas, const Histogram& histogram) {
  std::vector<double> middle, height;
  double most = 0.0;
  for (std::size_t n = 0; n < histogram.counts.size(); ++n) {
    middle.push_back(histogram.lower + (static_cast<double>(n) + 0.5) * histogram.width);
    height.push_back(static_cast<double>(histogram.counts[n]));
    most = std::max({most, height.back(), histogram.normal[n]});
  }
  const double upper = histogram.lower + static_cast<double>(histogram.counts.size()) * histogram.width;
  constexpr double kRoomForLegend = 1.25;
  Panel& panel = canvas.panel(1, 0, {kResidual, {histogram.lower, upper}, kFewNumbers},
                              {QStringLiteral("points"), {0.0, kRoomForLegend * most}});
  panel.bars(middle, height, histogram.width, canvas.theme().curve(0));
  panel.line(middle, histogram.normal, QPen(canvas.theme().warning, 2.0), QStringLiteral("normal distribution"));
  canvas.legend(panel);
}

void drawQuantiles(Canvas& canvas, const ResidualPictures& residuals) {
  const ShownRange x = rangeOfX(residuals.quantiles);
  Panel& panel = canvas.panel(1, 1, {QStringLiteral("normal quantile"), x}, {kResidual, rangeOfY(residuals.quantiles)});
  const std::vector<double> ends{x.lower, x.upper};
  const std::vector<double> line{x.lower * residuals.rootMeanSquare, x.upper * residuals.rootMeanSquare};
  panel.line(ends, line, QPen(canvas.theme().warning, 1.5));
  panel.points(residuals.quantiles, canvas.theme().curve(0), 4.0);
}

std::vector<PicturePoint> logarithmic(const std::vector<DegreePoint>& points) {
  std::vector<PicturePoint> drawn;
  for (const DegreePoint& point : points) drawn.push_back({point.terms, std::log10(point.s), point.number});
  return drawn;
}

void drawDegrees(Canvas& canvas, const Problem& problem, const std::vector<DegreeCombination>& combinations,
                 const DegreePicture& picture) {
  std::vector<PicturePoint> all = logarithmic(picture.beaten);
  const std::vector<PicturePoint> best = logarithmic(picture.best);
  all.insert(all.end(), best.begin(), best.end());
  Panel& panel = canvas.panel(0, 0, {QStringLiteral("coefficients"), rangeOfX(all)},
                              {QStringLiteral("log10 of s"), rangeOfY(all)});
  std::vector<double> terms, s;
  for (const PicturePoint& point : best) {
    terms.push_back(point.x);
    s.push_back(point.y);
  }
  panel.line(terms, s, QPen(canvas.theme().curve(0), 1.5));
  panel.points(logarithmic(picture.beaten), canvas.theme().grid, 5.0);
  panel.points(best, canvas.theme().curve(0), 7.0);
  if (!picture.recommended.empty()) {
    const DegreeCombination& one = combinations[picture.recommended.front().number];
    panel.points(logarithmic(picture.recommended), canvas.theme().warning, 11.0,
                 QStringLiteral("recommended: ") + shown(degreesText(one, problem.LastVar)));
    canvas.legend(panel);
  }
  if (picture.sheet.x.size() < 2 || picture.sheet.y.size() < 2) return;
  const Sheet& sheet = picture.sheet;
  Panel& colours = canvas.panel(0, 1, {QStringLiteral("degree of ") + nameOf(problem, 0), {-0.5, sheet.x.back() + 0.5}},
                                {QStringLiteral("degree of ") + nameOf(problem, 1), {-0.5, sheet.y.back() + 0.5}});
  canvas.colours(colours, sheet, ColourScale::Values, colourRange(ColourScale::Values, sheet.values),
                 QStringLiteral("log10 of s"));
  std::vector<PicturePoint> places, recommended;
  for (std::size_t n = 0; n < combinations.size(); ++n) {
    const auto& degrees = combinations[n].degrees;
    const PicturePoint place{static_cast<double>(degrees[0]), static_cast<double>(degrees[1]), n};
    (combinations[n].recommended ? recommended : places).push_back(place);
  }
  colours.points(places, QColor(255, 255, 255, 120), 3.0);
  colours.points(recommended, canvas.theme().warning, 11.0);
}

}  // namespace

void showSection(Picture& picture, const std::shared_ptr<const ShownFit>& fit, Section section) {
  const Problem& problem = fit->problem();
  PerVariable<bool> isShown{};
  isShown[section.variable] = true;
  if (section.familyVariable) isShown[*section.familyVariable] = true;
  std::string title = "Section along " + problem.VarName[section.variable];
  if (!section.curves.empty()) title += heldText(problem, section.curves.front().at, isShown);
  const QString text = shown(sectionText(*fit, section));
  const auto data = std::make_shared<const Section>(std::move(section));
  picture.show(shown(title), text, [fit, data, text](Canvas& canvas) {
    data->notShown.empty() ? drawSection(canvas, fit->problem(), *data) : canvas.message(text);
  });
}

void showMap(Picture& picture, const std::shared_ptr<const ShownFit>& fit, const MapChoice& choice, SurfaceMap map) {
  const Problem& problem = fit->problem();
  PerVariable<bool> isShown{};
  isShown[choice.x] = isShown[choice.y] = true;
  std::string title = mapQuantity(choice.of);
  if (choice.x != choice.y)
    title += " over " + problem.VarName[choice.x] + " and " + problem.VarName[choice.y] +
             heldText(problem, choice.at, isShown);
  title.front() = static_cast<char>(title.front() - 'a' + 'A');
  const QString text = shown(mapText(*fit, choice, map));
  const auto data = std::make_shared<const SurfaceMap>(std::move(map));
  picture.show(shown(title), text, [fit, choice, data, text](Canvas& canvas) {
    data->notShown.empty() ? drawMap(canvas, fit->problem(), choice, *data) : canvas.message(text);
  });
}

void showResiduals(Picture& picture, const std::shared_ptr<const ShownFit>& fit,
                   const std::shared_ptr<const ResidualPictures>& residuals, Long k) {
  const QString text = shown(residualText(*fit, *residuals));
  picture.show(QStringLiteral("Residuals"), text, [fit, residuals, k, text](Canvas& canvas) {
    if (!residuals->notShown.empty()) {
      canvas.message(text);
      return;
    }
    drawClouds(canvas, *fit, *residuals, k);
    drawHistogram(canvas, residuals->histogram);
    drawQuantiles(canvas, *residuals);
  });
}

void showDegrees(Picture& picture, const Problem& problem, std::vector<DegreeCombination> combinations) {
  const auto all = std::make_shared<const std::vector<DegreeCombination>>(std::move(combinations));
  const DegreePicture data = degreePicture(*all, problem.LastVar);
  const QString text = shown(degreePictureText(*all, problem.LastVar, data));
  Problem names;
  names.LastVar = problem.LastVar;
  names.VarName = problem.VarName;
  picture.show(QStringLiteral("Degrees and standard deviation"), text, [names, all, data, text](Canvas& canvas) {
    data.notShown.empty() ? drawDegrees(canvas, names, *all, data) : canvas.message(text);
  });
}

}  // namespace tavimor
