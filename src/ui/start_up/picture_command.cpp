#include "ui/start_up/picture_command.h"

#include <QApplication>
#include <array>
#include <optional>

#include "engine/fit.h"
#include "formats/open_problem.h"
#include "model/capture_specs.h"
#include "model/value_lists.h"
#include "runtime/text.h"
#include "runtime/val.h"
#include "ui/pictures/drawings.h"
#include "ui/pictures/picture_file.h"
#include "ui/start_up/display_check.h"

namespace tavimor {

namespace {

constexpr std::array kKinds{"section", "map", "residuals", "degrees"};

void requireKindAndFormat(const PictureRequest& request) {
  if (std::find(kKinds.begin(), kKinds.end(), request.kind) == kKinds.end())
    throw WrongRequest("--picture: \"" + withEscapes(request.kind) + "\" is none of section, map, residuals, degrees");
  if (request.problem.empty()) throw WrongRequest("PROBLEM is required");
  if (request.output.empty()) throw WrongRequest("--output is required");
  if (!pictureFormatOf(request.output))
    throw WrongRequest("--output: \"" + withEscapes(request.output) + "\" does not end in " + pictureEndingsText());
}

// The toolkit's platform without a display.
class Offscreen {
 public:
  Offscreen() {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const DisplayCheck check;
    application_.emplace(count_, words_.data());
  }

 private:
  int count_ = 1;
  char name_[8] = "tavimor";
  std::array<char*, 2> words_{name_, nullptr};
  std::optional<QApplication> application_;
};

ListedProblem listedProblem(const std::string& path) {
  OpenedProblem opened = openProblem(path);
  CaptureSpecs(opened.problem, opened.fields);
  ListedProblem listed{std::move(opened.problem), opened.fields, std::move(opened.fit), ListedFrom::Files};
  if (listed.fit.FitDone) return listed;
  FitOutcome outcome = fit(listed.problem);
  listed.from = outcome.end == FitEnd::Found ? ListedFrom::FitMadeNow : ListedFrom::Nowhere;
  listed.fit = std::move(outcome.fit);
  return listed;
}

Long variableNamed(const Problem& problem, const std::string& option, const std::string& name) {
  for (Long k = 0; k <= problem.LastVar; ++k)
    if (problem.VarName[k] == name) return k;
  throw WrongRequest(option + ": there is no variable \"" + withEscapes(name) + '"');
}

// Where variables are held: as asked for, and else at the grid value in the middle of their lists.
struct Held {
  PerVariable<double> at{};
  PerVariable<bool> isAsked{};

  Long firstFree(const Problem& problem, std::optional<Long> otherThan) const {
    for (Long k = 0; k <= problem.LastVar; ++k)
      if (!isAsked[k] && k != otherThan) return k;
    return otherThan == 0 ? std::min<Long>(1, problem.LastVar) : 0;
  }
};

Held heldBy(const Problem& problem, const std::vector<std::string>& at) {
  Held held;
  for (Long k = 0; k <= problem.LastVar; ++k) held.at[k] = valueOf(problem, k, problem.LastPoint[k] / 2);
  for (const std::string& one : at) {
    const std::size_t equals = one.rfind('=');
    const std::string number = equals == std::string::npos ? std::string() : one.substr(equals + 1);
    if (!IsNumeric(number)) throw WrongRequest("--at: \"" + withEscapes(one) + "\" is not NAME=NUMBER");
    const Long k = variableNamed(problem, "--at", one.substr(0, equals));
    held.at[k] = Val(number);
    held.isAsked[k] = true;
  }
  return held;
}

void requireShown(const std::string& notShown) {
  if (!notShown.empty()) throw NothingToShow(notShown);
}

void draw(Picture& picture, const PictureRequest& request, const std::shared_ptr<const ShownFit>& fit) {
  const Problem& problem = fit->problem();
  const Held held = heldBy(problem, request.at);
  const Long x = request.x.empty() ? held.firstFree(problem, std::nullopt) : variableNamed(problem, "--x", request.x);
  if (request.kind == "section") {
    SectionChoice choice;
    choice.variable = x;
    choice.at = held.at;
    Section section = sectionOf(*fit, choice);
    requireShown(section.notShown);
    showSection(picture, fit, std::move(section));
  } else if (request.kind == "map") {
    const MapChoice choice{MapOf::Fit, x, held.firstFree(problem, x), held.at};
    SurfaceMap map = mapOf(*fit, choice);
    requireShown(map.notShown);
    showMap(picture, fit, choice, std::move(map));
  } else if (request.kind == "residuals") {
    const auto residuals = std::make_shared<const ResidualPictures>(residualPictures(*fit));
    requireShown(residuals->notShown);
    showResiduals(picture, fit, residuals, x);
  } else {
    requireShown(noFitText(*fit));
    const SecondOpinion& opinion = fit->analysis->opinion;
    if (!opinion.isExact()) requireShown(reasonText(opinion.precise.finding, problem) + ": degrees cannot be compared");
    const auto combinations = degreeMap(opinion.data, opinion.decomposition, centresOf(opinion.data));
    requireShown(degreePicture(combinations, problem.LastVar).notShown);
    showDegrees(picture, problem, combinations);
  }
}

}  // namespace

void makePicture(const PictureRequest& request) {
  requireKindAndFormat(request);
  const Offscreen offscreen;
  const std::shared_ptr<const ShownFit> fit = shownFit(analyse(listedProblem(request.problem)));
  Picture picture(QStringLiteral("picture"));
  draw(picture, request, fit);
  savePicture(picture, request.output);
}

}  // namespace tavimor
