#include "ui/analysis/map_page.h"

#include "ui/pictures/drawings.h"

namespace tavimor {

MapPage::MapPage(AnalysisLink& link, std::shared_ptr<ShownFits> fits)
    : PicturePage(QStringLiteral("pagMap"), QStringLiteral("Ma&p"), QStringLiteral("picMap"), link, std::move(fits)) {
  cboShown = addChoice("cboShown", "S&how");
  for (const MapOf of : {MapOf::Fit, MapOf::Given, MapOf::Residual, MapOf::RelativeResidual})
    cboShown->addItem(QString::fromStdString(mapQuantity(of)), static_cast<int>(of));
  cboX = addChoice("cboX", "&over");
  cboY = addChoice("cboY", "a&nd");
  choices().addStretch(1);
  makeHeldVariables();
  connect(cboX, &QComboBox::currentIndexChanged, this, &MapPage::offerSecond);
  for (const QComboBox* choice : {cboShown, cboX, cboY}) drawAfter(choice);
}

void MapPage::takeProblem() {
  offerVariables(*cboX, [](Long) { return true; });
  offerSecond();
}

void MapPage::offerSecond() {
  const Long x = chosen(*cboX);
  offerVariables(*cboY, [=](Long k) { return k != x; });
  for (QComboBox* list : {cboX, cboY}) list->setEnabled(cboY->count() > 0);
}

void MapPage::draw() {
  const MapChoice choice{static_cast<MapOf>(cboShown->currentData().toInt()), chosen(*cboX), chosen(*cboY),
                         heldValues()};
  PerVariable<bool> isHeld{true, true, true, true};
  isHeld[choice.x] = isHeld[choice.y] = false;
  showHeld(isHeld);
  showMap(picture(), fit(), choice, mapOf(*fit(), choice));
}

void MapPage::saveChoices(QSettings& settings) const {
  saveChoice(settings, *cboShown);
  saveChoice(settings, *cboX);
  saveChoice(settings, *cboY);
}

void MapPage::restoreChoices(QSettings& settings) {
  restoreChoice(settings, *cboShown);
  restoreChoice(settings, *cboX);
  restoreChoice(settings, *cboY);
}

}  // namespace tavimor
