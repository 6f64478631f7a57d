#include "ui/analysis/picture_page.h"

#include <QLabel>
#include <QVBoxLayout>

#include "ui/controls/make_control.h"
#include "ui/pictures/canvas.h"
#include "ui/pictures/picture_menu.h"

namespace tavimor {

PicturePage::PicturePage(const QString& name, const QString& title, const QString& picture, AnalysisLink& link,
                         std::shared_ptr<ShownFits> fits)
    : AnalysisPage(name, title), link_(link), fits_(std::move(fits)), picture_(new Picture(picture)) {
  addPictureMenu(*picture_);
  layOut();
  connect(fits_.get(), &ShownFits::fitMade, this, &PicturePage::takeFit);
  connect(fits_.get(), &ShownFits::failed, this, [this](const std::string& why) {
    const QString text = QStringLiteral("There is nothing to show: %1").arg(QString::fromStdString(why));
    picture_->show({}, text, [text](Canvas& canvas) { canvas.message(text); });
  });
  connect(picture_, &Picture::pointedAt, lblPlace, &ElidedLabel::setText);
  connect(picture_, &Picture::arrowPressed, this, &PicturePage::stepHeld);
  connect(picture_, &Picture::pointClicked, this, [this](std::size_t number) { link_.selectPoint(indexOf(number)); });
  connect(picture_, &Picture::pointDoubleClicked, this, [this](std::size_t number) {
    if (const auto index = indexOf(number)) emit link_.functionWanted(*index);
  });
  connect(picture_, &Picture::escaped, this, [this] { link_.selectPoint(std::nullopt); });
  connect(&link_, &AnalysisLink::pointSelected, this, &PicturePage::showSelected);
}

void PicturePage::layOut() {
  choices_ = new QHBoxLayout;
  middle_ = new QHBoxLayout;
  held_ = new QVBoxLayout;
  lblPlace = makeControl<ElidedLabel>(QStringLiteral("lblPlace"), "");
  middle_->addWidget(picture_, 1);
  auto* page = new QVBoxLayout(this);
  page->addLayout(choices_);
  page->addLayout(held_);
  page->addLayout(middle_, 1);
  page->addWidget(lblPlace);
}

QString PicturePage::nameOf(Long k) const {
  constexpr int kLongest = 20;
  const QString name = QString::fromStdString(problem().VarName[k]);
  return name.size() <= kLongest ? name : name.left(kLongest - 1) + QChar(0x2026);
}

void PicturePage::showAnalysis(const std::shared_ptr<const Analysis>& analysis) {
  analysis_ = analysis;
  fits_->ask(analysis);
}

void PicturePage::takeFit(const std::shared_ptr<const ShownFit>& fit) {
  if (fit->analysis != analysis_ || fit == fit_) return;
  fit_ = fit;
  for (Long k = 0; k <= problem().LastVar; ++k)
    if (heldVariables_[k] != nullptr) heldVariables_[k]->setProblem(problem());
  takeProblem();
  holdAtSelected();
  draw();
  picture_->mark(selectedNumber());
}

QComboBox* PicturePage::addChoice(const char* name, const char* caption) {
  auto* label = makeControl<QLabel>({}, caption);
  auto* list = new QComboBox;
  list->setObjectName(QLatin1String(name));
  list->setFont(sansSerifFont());
  list->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  list->setAccessibleName(QString(QLatin1String(caption)).remove(QLatin1Char('&')));
  label->setBuddy(list);
  choices_->addWidget(label);
  choices_->addWidget(list);
  return list;
}

void PicturePage::drawAfter(const QComboBox* choice) {
  connect(choice, &QComboBox::currentIndexChanged, this, [this] {
    if (fit_ != nullptr) draw();
  });
}

void PicturePage::saveChoice(QSettings& settings, const QComboBox& list) {
  if (list.currentData().isValid()) settings.setValue(list.objectName(), list.currentData());
}

// A list of variables is empty until there is a fit: the choice waits in it.
void PicturePage::restoreChoice(QSettings& settings, QComboBox& list) {
  const QVariant chosen = settings.value(list.objectName());
  if (!chosen.isValid()) return;
  const QSignalBlocker quiet(&list);
  if (list.count() == 0) list.addItem({}, chosen.toInt());
  list.setCurrentIndex(std::max(0, list.findData(chosen.toInt())));
}

void PicturePage::makeHeldVariables() {
  for (Long k = 0; k < kMaxVariables; ++k) {
    heldVariables_[k] = new HeldVariable(k);
    heldVariables_[k]->hide();
    held_->addWidget(heldVariables_[k]);
    connect(heldVariables_[k], &HeldVariable::changed, this, [this] { draw(); });
  }
}

void PicturePage::showHeld(const PerVariable<bool>& isHeld) {
  for (Long k = 0; k < kMaxVariables; ++k) heldVariables_[k]->setVisible(isHeld[k] && k <= problem().LastVar);
}

PerVariable<double> PicturePage::heldValues() const {
  PerVariable<double> at{};
  for (Long k = 0; k <= problem().LastVar; ++k) at[k] = heldVariables_[k]->value();
  return at;
}

// Left and right move the first variable that is held, up and down the second one.
void PicturePage::stepHeld(Qt::Key key) {
  std::vector<HeldVariable*> shown;
  for (HeldVariable* one : heldVariables_)
    if (one != nullptr && one->isVisibleTo(this)) shown.push_back(one);
  const std::size_t which = key == Qt::Key_Up || key == Qt::Key_Down ? 1 : 0;
  if (which < shown.size()) shown[which]->step(key == Qt::Key_Right || key == Qt::Key_Up ? 1 : -1);
}

std::optional<PerVariable<Long>> PicturePage::indexOf(std::size_t number) const {
  if (fit_ == nullptr) return std::nullopt;
  return gridIndexAt(problem().F.last(), number);
}

// Nothing where the selected point is none of this grid: it was one of a problem before.
std::optional<std::size_t> PicturePage::selectedNumber() const {
  const auto& index = link_.selectedPoint();
  if (!index) return std::nullopt;
  for (Long k = 0; k < kMaxVariables; ++k)
    if ((*index)[k] > problem().F.last()[k]) return std::nullopt;
  return gridNumberOf(problem().F.last(), *index);
}

// False where nothing has moved of what is on show.
bool PicturePage::holdAtSelected() {
  bool hasMoved = false;
  if (!selectedNumber()) return hasMoved;
  for (Long k = 0; k <= problem().LastVar; ++k) {
    HeldVariable* one = heldVariables_[k];
    if (one != nullptr && one->holdAt((*link_.selectedPoint())[k])) hasMoved |= one->isVisibleTo(this);
  }
  return hasMoved;
}

void PicturePage::showSelected() {
  if (fit_ == nullptr) return;
  if (holdAtSelected()) draw();
  picture_->mark(selectedNumber());
}

}  // namespace tavimor
