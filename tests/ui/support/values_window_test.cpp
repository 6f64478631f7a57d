#include "ui/support/values_window_test.h"

#include "model/value_lists.h"
#include "runtime/number_text.h"
#include "runtime/val.h"
#include "support/stored.h"
#include "ui/controls/control_array.h"

namespace tavimor {

ValuesWindowTest::ValuesWindowTest() {
  test::store(twoVariables(), file("problem"));
  open("problem");
}

frmVars& ValuesWindowTest::values() {
  if (auto* found = Form::openForm<frmVars>()) return *found;
  throw std::runtime_error("the values window is not loaded");
}

void ValuesWindowTest::showBlock(Long k) {
  while (model.CurVar != k + 1) click("cmdNextVar");
}

void ValuesWindowTest::edit(Long k) {
  showBlock(k);
  click(elementName("cmdEditVars", k));
  ASSERT_TRUE(waitForKeyboard(values()));
}

void ValuesWindowTest::add(Long k, const QString& count) {
  showBlock(k);
  dialogs.expectAndType(count);
  click(elementName("cmdAddVars", k));
  ASSERT_TRUE(waitForKeyboard(values()));
}

void ValuesWindowTest::type(const QString& text) {
  for (const QChar character : text) MainWindowTest::type(character);
}

void ValuesWindowTest::clickCell(int row, int col) {
  const QModelIndex cell = grid().model()->index(row, col);
  grid().scrollTo(cell);
  QTest::mouseClick(grid().viewport(), Qt::LeftButton, {}, grid().visualRect(cell).center());
}

std::vector<std::string> ValuesWindowTest::column() {
  std::vector<std::string> texts(grid().Rows());
  for (int row = 0; row < grid().Rows(); ++row) texts[row] = cell(row);
  return texts;
}

QRect ValuesWindowTest::placeOfCell() {
  return {grid().x() + grid().CellLeft(), grid().y() + grid().CellTop(), grid().CellWidth(), grid().CellHeight()};
}

void ValuesWindowTest::expectEditing(int row) {
  EXPECT_TRUE(entry().isVisible());
  EXPECT_EQ(focusName(), "txtDataEntry");
  EXPECT_EQ(grid().Row(), row);
  EXPECT_EQ(entry().text(), grid().Text());
  EXPECT_EQ(entry().geometry(), placeOfCell());
}

void ValuesWindowTest::expectAgreement() {
  const Long v = model.V, last = model.LastPoint[v];
  ASSERT_EQ(std::ssize(valueList(model, v)), last + 1);
  EXPECT_EQ(model.F.last(), model.LastPoint);
  EXPECT_EQ(textOf(elementName("txtPoints", v)), std::to_string(last + 1));
  EXPECT_NE(window->isEnabled(), values().isVisible());
  ASSERT_EQ(grid().Rows(), last + 1);
  for (Long i = 0; i <= last; ++i) {
    const double value = valueList(model, v)[i];
    EXPECT_EQ(cell(i, 0), model.VarName[v] + "(" + std::to_string(i) + ")=");
    EXPECT_TRUE(cell(i) == numberText(value) || Val(cell(i)) == value) << cell(i) << " is not " << value;
  }
  EXPECT_EQ(grid().Col(), 1);
  if (entry().isVisible()) {
    EXPECT_EQ(entry().text(), grid().Text());
    EXPECT_TRUE(QTest::qWaitFor([] { return entry().geometry() == placeOfCell(); }));
  }
}

}  // namespace tavimor
