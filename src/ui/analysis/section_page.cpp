#include "ui/analysis/section_page.h"

#include "ui/pictures/drawings.h"

namespace tavimor {

namespace {

constexpr std::size_t kFamily = 5;  // curves
constexpr int kNoFamily = -1;

// Some of the values of a variable, from the first to the last one.
std::vector<double> familyValues(const Problem& problem, Long k) {
  const std::span<const double> values = gridValues(problem, k);
  if (values.size() <= kFamily) return {values.begin(), values.end()};
  std::vector<double> some;
  for (std::size_t n = 0; n < kFamily; ++n) some.push_back(values[n * (values.size() - 1) / (kFamily - 1)]);
  return some;
}

}  // namespace

SectionPage::SectionPage(AnalysisLink& link, std::shared_ptr<ShownFits> fits)
    : PicturePage(QStringLiteral("pagSection"), QStringLiteral("S&ection"), QStringLiteral("picSection"), link,
                  std::move(fits)) {
  cboAlong = addChoice("cboAlong", "A&long");
  cboFamily = addChoice("cboFamily", "Cur&ves for");
  choices().addStretch(1);
  makeHeldVariables();
  connect(cboAlong, &QComboBox::currentIndexChanged, this, &SectionPage::offerFamilies);
  drawAfter(cboAlong);
  drawAfter(cboFamily);
}

void SectionPage::takeProblem() {
  offerVariables(*cboAlong, [](Long) { return true; });
  offerFamilies();
}

void SectionPage::offerFamilies() {
  const Long along = chosen(*cboAlong);
  const QVariant before = cboFamily->currentData();
  offerVariables(*cboFamily, [=](Long k) { return k != along; });
  const QSignalBlocker quiet(cboFamily);
  cboFamily->insertItem(0, QStringLiteral("one value"), kNoFamily);
  cboFamily->setCurrentIndex(before.isValid() ? std::max(0, cboFamily->findData(before)) : 0);
}

void SectionPage::draw() {
  SectionChoice choice;
  choice.variable = chosen(*cboAlong);
  choice.at = heldValues();
  PerVariable<bool> isHeld{true, true, true, true};
  isHeld[choice.variable] = false;
  if (const Long family = chosen(*cboFamily); family != kNoFamily) {
    choice.familyVariable = family;
    choice.familyValues = familyValues(problem(), family);
    isHeld[family] = false;
  }
  showHeld(isHeld);
  showSection(picture(), fit(), sectionOf(*fit(), choice));
}

void SectionPage::saveChoices(QSettings& settings) const {
  saveChoice(settings, *cboAlong);
  saveChoice(settings, *cboFamily);
}

void SectionPage::restoreChoices(QSettings& settings) {
  restoreChoice(settings, *cboAlong);
  restoreChoice(settings, *cboFamily);
}

}  // namespace tavimor
