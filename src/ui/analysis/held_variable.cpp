#include "ui/analysis/held_variable.h"

#include <QHBoxLayout>
#include <QSignalBlocker>
#include <algorithm>
#include <cmath>

#include "analysis/pictures/grid_values.h"
#include "runtime/number_text.h"
#include "runtime/val.h"
#include "ui/controls/control_array.h"
#include "ui/controls/make_control.h"

namespace tavimor {

HeldVariable::HeldVariable(Long k) : k_(k) {
  constexpr int kDigits = 12;
  lblAt = makeControl<ElidedLabel>(elementName("lblAt", k), "");
  sldAt = new QSlider(Qt::Horizontal);
  sldAt->setObjectName(elementName("sldAt", k));
  txtAt = makeControl<QLineEdit>(elementName("txtAt", k), "");
  txtAt->setFixedWidth(widthOf(*txtAt, kDigits));
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(lblAt);
  layout->addWidget(sldAt, 1);
  layout->addWidget(txtAt);
  connect(sldAt, &QSlider::valueChanged, this, &HeldVariable::takeSlider);
  connect(txtAt, &QLineEdit::editingFinished, this, &HeldVariable::takeText);
}

void HeldVariable::setProblem(const Problem& problem) {
  constexpr int kPages = 10;
  const QString name = QString::fromStdString(problem.VarName[k_]);
  lblAt->setText(name + QStringLiteral(" ="));
  sldAt->setAccessibleName(name);
  txtAt->setAccessibleName(name);
  const bool isFirst = values_.empty();
  const std::span<const double> values = gridValues(problem, k_);
  values_.assign(values.begin(), values.end());
  const auto [least, largest] = std::minmax_element(values_.begin(), values_.end());
  const bool stays = !isFirst && *least <= value_ && value_ <= *largest;
  const QSignalBlocker quiet(sldAt);
  sldAt->setRange(0, static_cast<int>(values_.size()) - 1);
  sldAt->setPageStep(std::max(1, static_cast<int>(values_.size()) / kPages));
  setValue(stays ? value_ : values_[(values_.size() - 1) / 2]);
}

int HeldVariable::nearestTo(double value) const {
  const auto isNearer = [value](double a, double b) { return std::fabs(a - value) < std::fabs(b - value); };
  return static_cast<int>(std::min_element(values_.begin(), values_.end(), isNearer) - values_.begin());
}

void HeldVariable::setValue(double value) {
  const QSignalBlocker quiet(sldAt);
  value_ = value;
  sldAt->setValue(nearestTo(value));
  txtAt->setText(QString::fromStdString(numberText(value)));
}

bool HeldVariable::holdAt(Long i) {
  const double before = value_;
  setValue(values_.at(static_cast<std::size_t>(i)));
  return value_ != before;
}

void HeldVariable::takeSlider(int i) {
  value_ = values_.at(static_cast<std::size_t>(i));
  txtAt->setText(QString::fromStdString(numberText(value_)));
  emit changed();
}

// What is no number leaves all as it is.
void HeldVariable::takeText() {
  const double before = value_;
  const std::string text = txtAt->text().toStdString();
  setValue(IsNumeric(text) ? Val(text) : value_);
  if (value_ != before) emit changed();
}

}  // namespace tavimor
