#include "ui/data_windows/frmFun.h"

#include <algorithm>

#include "model/grid_walk.h"
#include "model/value_lists.h"
#include "runtime/number_text.h"
#include "runtime/val.h"

namespace tavimor {

namespace {

// While it lives the window rewrites its boxes, and their change handlers do nothing: a value is not changed by being
// shown, though its text has 15 digits only.
class Rewriting {
 public:
  explicit Rewriting(Dimension& model) : model_(model) { model_.Updating = true; }
  Rewriting(const Rewriting&) = delete;
  Rewriting& operator=(const Rewriting&) = delete;
  ~Rewriting() { model_.Updating = false; }

 private:
  Dimension& model_;
};

double value(const TextBox& box) { return Val(box.text().toStdString()); }

Long wholeNumber(const TextBox& box) { return ValLong(box.text().toStdString()); }

template <class Number>
QString text(Number number) {
  return QString::fromStdString(numberText(number));
}

bool isLastPoint(const Problem& problem, const PerVariable<Long>& point) {
  return numberOfPoint(problem, point) == static_cast<std::int64_t>(problem.F.size());
}

// Whether the user may be typing: "" or "-" on the way to "-1", "1." to "1.5".
bool mayGoOn(const TextBox& box) { return box.text().isEmpty() || QStringLiteral(".+-eE").contains(box.text().back()); }

}  // namespace

frmFun::frmFun(Dimension& model)
    : Form(QStringLiteral("frmFun")), FunControls(static_cast<QWidget&>(*this)), model_(model) {
  setWindowTitle(QStringLiteral("Enter/Edit values of function"));
  connectEvents();
  Form_Load();
}

void frmFun::connectEvents() {
  connect(cmdIncFunIndex, &QPushButton::clicked, this, &frmFun::cmdIncFunIndex_Click);
  connect(cmdDecFunIndex, &QPushButton::clicked, this, &frmFun::cmdDecFunIndex_Click);
  connect(cmdExit, &QPushButton::clicked, this, &frmFun::cmdExit_Click);
  connect(txtFun, &TextBox::KeyPress, this, &frmFun::txtFun_KeyPress);
  connect(txtFun, &TextBox::Change, this, &frmFun::txtFun_Change);
  connect(txtFun, &TextBox::GotFocus, txtFun, &TextBox::selectAll);
  for (Long k = 0; k < kMaxVariables; ++k) connectRow(k);
}

void frmFun::connectRow(Long k) {
  for (TextBox* box : {txtFunIndex[k], txtVarIndex[k], txtVar[k]})
    connect(box, &TextBox::GotFocus, box, &TextBox::selectAll);
  connect(txtFunIndex[k], &TextBox::Change, this, [this, k] { txtFunIndex_Change(k); });
  connect(txtVarIndex[k], &TextBox::Change, this, [this, k] { txtVarIndex_Change(k); });
  connect(txtVar[k], &TextBox::Change, this, [this, k] { txtVar_Change(k); });
  connect(txtFunIndex[k], &TextBox::Validate, this, [this, k](bool& c) { txtFunIndex_Validate(k, c); });
  connect(txtVarIndex[k], &TextBox::Validate, this, [this, k](bool& c) { txtVarIndex_Validate(k, c); });
  connect(cmdIncIndex[k], &QPushButton::clicked, this, [this, k] { cmdIncIndex_Click(k); });
  connect(cmdDecIndex[k], &QPushButton::clicked, this, [this, k] { cmdDecIndex_Click(k); });
}

void frmFun::Form_Load() {
  model_.Updating = false;
  layOutFunctionCall(model_.LastVar);
  txtFun->setText(text(model_.F(model_.StartIdx)));
  for (Long k = 0; k <= model_.LastVar; ++k) {
    showRow(k, QString::fromStdString(model_.VarName[k]));
    txtVar[k]->setText(text(valueOf(model_, k, model_.StartIdx[k])));
    txtVarIndex[k]->setText(text(model_.StartIdx[k]));
    txtFunIndex[k]->setText(text(model_.StartIdx[k]));
  }
  tellPoint();
  txtFun->setFocus();
}

void frmFun::readIndices() {
  for (Long k = 0; k <= model_.LastVar; ++k) model_.StartIdx[k] = wholeNumber(*txtFunIndex[k]);
}

void frmFun::storeFunctionValue() {
  readIndices();
  const double newValue = value(*txtFun);
  emit FunctionValueChanging(model_.StartIdx, newValue);
  model_.F(model_.StartIdx) = newValue;
}

void frmFun::showFunctionValue() {
  const Rewriting rewriting(model_);
  txtFun->setText(text(model_.F(model_.StartIdx)));
}

void frmFun::showVariableValue(Long k) {
  const Rewriting rewriting(model_);
  txtVar[k]->setText(text(valueOf(model_, k, model_.StartIdx[k])));
}

void frmFun::showPoint() {
  const Rewriting rewriting(model_);
  for (Long k = 0; k <= model_.LastVar; ++k) txtFunIndex[k]->setText(text(model_.StartIdx[k]));
  txtFun->setText(text(model_.F(model_.StartIdx)));
  txtFun->selectAll();
  for (Long k = 0; k <= model_.LastVar; ++k) {
    txtVar[k]->setText(text(valueOf(model_, k, model_.StartIdx[k])));
    txtVarIndex[k]->setText(text(model_.StartIdx[k]));
  }
  tellPoint();
}

void frmFun::showAnew(const PerVariable<Long>& point) {
  for (Long k = 0; k <= model_.LastVar; ++k) model_.StartIdx[k] = std::clamp<Long>(point[k], 0, model_.LastPoint[k]);
  showPoint();
}

void frmFun::tellPoint(const QString& more) {
  const auto number = numberOfPoint(model_, model_.StartIdx);
  stbStatus->clearHint();
  stbStatus->showResult(QStringLiteral("point %1 of %2").arg(number).arg(model_.F.size()) + more);
  emit PointEntered();
}

void frmFun::cmdIncFunIndex_Click() {
  storeFunctionValue();
  const bool wasLast = isLastPoint(model_, model_.StartIdx);
  model_.StartIdx = nextPoint(model_, model_.StartIdx);
  showPoint();
  if (wasLast) tellPoint(QStringLiteral("; last point reached"));
}

void frmFun::cmdDecFunIndex_Click() {
  storeFunctionValue();
  const bool wasFirst = numberOfPoint(model_, model_.StartIdx) == 1;
  model_.StartIdx = previousPoint(model_, model_.StartIdx);
  showPoint();
  if (wasFirst) tellPoint(QStringLiteral("; first point reached"));
}

void frmFun::txtFun_KeyPress(QChar& character) {
  if (character != QLatin1Char('\r')) return;
  character = QChar();
  cmdIncFunIndex_Click();
}

void frmFun::cmdIncIndex_Click(Long k) {
  model_.StartIdx[k] = nextOnRing(wholeNumber(*txtVarIndex[k]), model_.LastPoint[k]);
  txtVarIndex[k]->setText(text(model_.StartIdx[k]));
}

void frmFun::cmdDecIndex_Click(Long k) {
  model_.StartIdx[k] = previousOnRing(wholeNumber(*txtVarIndex[k]), model_.LastPoint[k]);
  txtVarIndex[k]->setText(text(model_.StartIdx[k]));
}

bool frmFun::handlersRest() const { return model_.Updating || !txtFun->isVisible(); }

bool frmFun::isIndexOf(Long k, const TextBox& box) const {
  const double index = value(box);
  return index >= 0.0 && index <= model_.LastPoint[k];
}

void frmFun::txtFun_Change() {
  if (handlersRest()) return;
  storeFunctionValue();
}

void frmFun::txtFunIndex_Change(Long k) { takeIndex(k, *txtFunIndex[k]); }

void frmFun::txtVarIndex_Change(Long k) { takeIndex(k, *txtVarIndex[k]); }

// Both boxes show the whole number that was taken; the one that is typed in once the user cannot be on the way to
// another number any more.
void frmFun::takeIndex(Long k, const TextBox& typed) {
  if (handlersRest() || !isIndexOf(k, typed)) return;
  const Long index = model_.StartIdx[k] = wholeNumber(typed);
  for (TextBox* box : {txtFunIndex[k], txtVarIndex[k]})
    if (box != &typed || !mayGoOn(typed)) showIndex(*box, index);
  showVariableValue(k);
  readIndices();
  showFunctionValue();
  tellPoint();
}

void frmFun::showIndex(TextBox& box, Long index) {
  const Rewriting rewriting(model_);
  if (box.text() != text(index)) box.setText(text(index));  // the same text anew would move the caret
}

void frmFun::txtVar_Change(Long k) {
  if (handlersRest()) return;
  model_.VarX = value(*txtVar[k]);
  const Long i = wholeNumber(*txtVarIndex[k]);
  emit ValueChanging(k, i, model_.VarX);
  valueOf(model_, k, i) = model_.VarX;
}

void frmFun::txtFunIndex_Validate(Long k, bool& cancel) { cancel = !mayLeave(k, *txtFunIndex[k]); }

void frmFun::txtVarIndex_Validate(Long k, bool& cancel) { cancel = !mayLeave(k, *txtVarIndex[k]); }

bool frmFun::mayLeave(Long k, TextBox& box) {
  const bool isIndex = isIndexOf(k, box);
  if (isIndex)
    showIndex(box, wholeNumber(box));
  else
    tell(QStringLiteral("An index from 0 to %1 is needed here").arg(model_.LastPoint[k]));
  return isIndex;
}

void frmFun::cmdExit_Click() { unload(); }

void frmFun::Form_Unload() { emit Finished(); }

}  // namespace tavimor
