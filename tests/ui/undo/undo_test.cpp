#include "ui/undo/undo_test.h"

#include "support/stored.h"

namespace tavimor {

void UndoTest::undo(int times) {
  for (int n = 0; n < times; ++n) press(Qt::Key_Z, Qt::ControlModifier);
}

void UndoTest::redo(int times) {
  for (int n = 0; n < times; ++n) press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
}

void UndoTest::openTwoVariables() {
  test::store(twoVariables(), file("problem"));
  open("problem");
}

void UndoTest::review(const QString& point) {
  dialogs.expectAndType(point);
  click("cmdEditFun");
  ASSERT_TRUE(waitForKeyboard(function()));
}

frmFun& UndoTest::function() {
  if (auto* found = Form::openForm<frmFun>()) return *found;
  throw std::runtime_error("the function window is not open");
}

TextBox& UndoTest::functionBox(const char* name) {
  auto* box = function().findChild<TextBox*>(QLatin1String(name));
  if (box == nullptr) throw std::runtime_error(std::string("no box ") + name);
  return *box;
}

}  // namespace tavimor
