#include "ui/data_windows/frmVars.h"

#include <algorithm>

#include "model/delete_value.h"
#include "model/value_lists.h"
#include "runtime/number_text.h"
#include "runtime/val.h"

namespace tavimor {

namespace {

bool isOfANumber(QChar character) { return QStringLiteral("+-.0123456789Ee").contains(character); }

QString whyDiscarded(QChar character) {
  if (character == QLatin1Char('\b'))
    return QStringLiteral("Backspace does nothing here: use the Delete key, or type over a selection");
  return QStringLiteral("Numbers have digits, a decimal point, signs and E; no other key does anything here");
}

}  // namespace

frmVars::frmVars(Dimension& model)
    : Form(QStringLiteral("frmVars")), VarsControls(static_cast<QWidget&>(*this)), model_(model) {
  setWindowTitle(QStringLiteral("Enter/Edit values of variables"));
  connectEvents();
  Form_Load();
}

void frmVars::connectEvents() {
  connect(MSFlexGridVars, &FlexGrid::Click, this, &frmVars::MSFlexGridVars_Click);
  connect(MSFlexGridVars, &FlexGrid::KeyPress, this, &frmVars::MSFlexGridVars_KeyPress);
  connect(MSFlexGridVars, &FlexGrid::RowColChange, this, &frmVars::MSFlexGridVars_RowColChange);
  connect(MSFlexGridVars, &FlexGrid::CellsMoved, this, &frmVars::moveEntry);
  connect(txtDataEntry, &TextBox::KeyPress, this, &frmVars::txtDataEntry_KeyPress);
  connect(txtDataEntry, &TextBox::KeyDown, this, &frmVars::txtDataEntry_KeyDown);
  connect(txtDataEntry, &TextBox::GotFocus, this, &frmVars::txtDataEntry_GotFocus);
  connect(txtDataEntry, &TextBox::Change, this, &frmVars::txtDataEntry_Change);
  connect(cmdDelete, &QPushButton::clicked, this, &frmVars::cmdDelete_Click);
  connect(cmdExit, &QPushButton::clicked, this, &frmVars::cmdExit_Click);
}

void frmVars::Form_Load() { txtDataEntry->hide(); }

void frmVars::open(Form& above, Long row) {
  stbStatus->clearHint();
  MSFlexGridVars->setRow(row);
  txtDataEntry->setText(MSFlexGridVars->Text());
  MSFlexGridVars->setFocus();
  showAbove(above);
  MSFlexGridVars->scrollToCell();  // a window that was not shown yet has no rows in view
}

// The grid tells of every cell on its way; the editor must not store what it showed before.
void frmVars::showAnew(Long row) {
  MSFlexGridVars->setRow(std::min<int>(row, MSFlexGridVars->Rows() - 1));
  txtDataEntry->setText(MSFlexGridVars->Text());
  txtDataEntry->selectAll();
  MSFlexGridVars->scrollToCell();
}

void frmVars::MSFlexGridVars_Click() { placeEntry(); }

void frmVars::MSFlexGridVars_KeyPress(QChar character) {
  txtDataEntry->show();
  if (isOfANumber(character)) txtDataEntry->setText(character);
  txtDataEntry->setToolTip(
      QStringLiteral("A(%1,%2)=%3").arg(MSFlexGridVars->Row()).arg(MSFlexGridVars->Col()).arg(MSFlexGridVars->Text()));
  showEntry();
  // The focus has selected the text; the next character is to follow the first one, not to replace it.
  if (isOfANumber(character)) txtDataEntry->setCursorPosition(1);
}

// The keyboard moves about the grid also while the editor is visible: it goes along, and stays over the current cell.
void frmVars::MSFlexGridVars_RowColChange() {
  moveEntry();
  txtDataEntry->setText(MSFlexGridVars->Text());
}

void frmVars::txtDataEntry_KeyPress(QChar& character) {
  if (isOfANumber(character)) return;
  stbStatus->showHint(whyDiscarded(character));
  character = QChar();
}

void frmVars::txtDataEntry_KeyDown(int& keyCode) {
  MSFlexGridVars->scrollToCell();
  switch (keyCode) {
    case Qt::Key_Return:
    case Qt::Key_Enter: MSFlexGridVars->setFocus(); break;
    case Qt::Key_Left: step(0, -1); break;
    case Qt::Key_Up: step(-1, 0); break;
    case Qt::Key_Right: step(0, 1); break;
    case Qt::Key_Down: step(1, 0); break;
    default: return;
  }
  keyCode = 0;
}

void frmVars::txtDataEntry_GotFocus() { txtDataEntry->selectAll(); }

// A value is not changed by being shown: its text has 15 digits only.
void frmVars::txtDataEntry_Change() {
  stbStatus->clearHint();
  if (!txtDataEntry->isVisible() || model_.Updating) return;
  MSFlexGridVars->setText(txtDataEntry->text());
  model_.I = MSFlexGridVars->Row();
  store(txtDataEntry->text().toStdString());
}

void frmVars::store(const std::string& text) {
  double& value = valueOf(model_, model_.V, model_.I);
  if (text != numberText(value)) {
    if (!isDeleting_) emit ValueChanging(model_.V, model_.I, Val(text));
    value = Val(text);
  }
  model_.VarX = value;
}

void frmVars::cmdDelete_Click() {
  const Long v = model_.V, last = model_.LastPoint[v];
  if (last == 0) return;
  const Long r = model_.I = MSFlexGridVars->Row();
  emit ValueDeleting(v, r);
  isDeleting_ = true;
  const QString lastValue = QString::fromStdString(numberText(valueOf(model_, v, last)));
  txtDataEntry->setText(lastValue);
  MSFlexGridVars->setText(lastValue);
  MSFlexGridVars->setRows(last);
  if (r == last) txtDataEntry->hide();
  isDeleting_ = false;
  deleteValue(model_, v, r);
  emit ValueDeleted(v);
}

void frmVars::cmdExit_Click() { finish(); }

void frmVars::Form_Unload() { finish(); }

void frmVars::finish() {
  txtDataEntry_Change();
  hide();
  txtDataEntry->hide();
  emit Finished();
}

void frmVars::moveEntry() {
  txtDataEntry->setGeometry(MSFlexGridVars->visibleCell().translated(MSFlexGridVars->pos()));
}

void frmVars::showEntry() {
  MSFlexGridVars->scrollToCell();
  moveEntry();
  txtDataEntry->show();
  txtDataEntry->setFocus();
}

void frmVars::placeEntry() {
  txtDataEntry->setText(MSFlexGridVars->Text());
  showEntry();
}

void frmVars::step(int rows, int cols) {
  MSFlexGridVars->setFocus();
  const int row = MSFlexGridVars->Row() + rows, col = MSFlexGridVars->Col() + cols;
  if (row < MSFlexGridVars->FixedRows() || row >= MSFlexGridVars->Rows()) return;
  if (col < MSFlexGridVars->FixedCols() || col >= MSFlexGridVars->Cols()) return;
  MSFlexGridVars->setCurrentCell(row, col);
  placeEntry();
}

}  // namespace tavimor
