#include "ui/analysis/drawn_degrees.h"

#include <QVBoxLayout>

#include "ui/controls/elided_label.h"
#include "ui/controls/make_control.h"
#include "ui/pictures/drawings.h"
#include "ui/pictures/picture_menu.h"

namespace tavimor {

DrawnDegrees::DrawnDegrees() : picture_(new Picture(QStringLiteral("picDegrees"))) {
  addPictureMenu(*picture_);
  auto* place = makeControl<ElidedLabel>(QStringLiteral("lblPlace"), "");
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(picture_, 1);
  layout->addWidget(place);
  connect(picture_, &Picture::pointedAt, place, &ElidedLabel::setText);
  connect(picture_, &Picture::pointClicked, this, [this](std::size_t number) { picture_->mark(number); });
  connect(picture_, &Picture::pointDoubleClicked, this,
          [this](std::size_t number) { emit chosen(degrees_->combinations[number].degrees); });
}

void DrawnDegrees::showDegrees(const std::shared_ptr<const Analysis>& analysis,
                               const std::shared_ptr<const DegreeSearch>& degrees) {
  degrees_ = degrees;
  picture_->mark(std::nullopt);
  tavimor::showDegrees(*picture_, analysis->problem(), degrees->combinations);
}

}  // namespace tavimor
