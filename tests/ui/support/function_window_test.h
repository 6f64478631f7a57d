#pragma once

#include <gtest/gtest.h>

#include <QPointer>
#include <QTest>
#include <string>
#include <vector>

#include "model/value_lists.h"
#include "runtime/number_text.h"
#include "ui/controls/control_array.h"
#include "ui/data_windows/frmFun.h"
#include "ui/main_window/frmTavimor.h"
#include "ui/support/dialogs.h"

namespace tavimor {

/// The function window over a main window of its own, driven by keys and clicks.
class FunctionWindowTest : public testing::Test {
 protected:
  /// Opens the window for a grid of these counts, with values that tell where they stand.
  void open(const std::vector<Long>& counts, const PerVariable<Long>& start = {}) {
    main = new frmTavimor(model);
    model.LastVar = static_cast<Long>(counts.size()) - 1;
    for (std::size_t k = 0; k < counts.size(); ++k) {
      model.LastPoint[k] = counts[k] - 1;
      model.VarName[k] = std::string("var") + std::to_string(k);
    }
    model.F.redim(model.LastPoint);
    for (std::size_t n = 0; n < model.F.size(); ++n) model.F.data()[n] = 0.5 + static_cast<double>(n);
    for (Long k = 0; k <= model.LastVar; ++k) fillValues(k);
    model.StartIdx = start;
    main->show();
    main->disable();
    window = new frmFun(model);
    QObject::connect(window, &frmFun::Finished, main, &Form::enable);
    window->show();
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window));
  }

  void fillValues(Long k) {
    ResizeVarValues(model, k);
    for (Long i = 0; i <= model.LastPoint[k]; ++i) {
      model.VarX = 100.0 * k + i + 0.25;
      main->SetVarX(k, i);
    }
  }

  void TearDown() override {
    delete window;
    delete main;
  }

  template <class Control = TextBox>
  Control* find(const std::string& name) {
    auto* control = window->findChild<Control*>(QString::fromStdString(name));
    if (control == nullptr) throw std::runtime_error("no control " + name);
    return control;
  }

  std::string text(const std::string& name) { return find(name)->text().toStdString(); }

  void click(const std::string& name) { QTest::mouseClick(find<QPushButton>(name), Qt::LeftButton); }

  /// Replaces a box's text by typing, the box entered by a click.
  void type(const std::string& name, const std::string& typed) {
    TextBox* box = find(name);
    QTest::mouseClick(box, Qt::LeftButton);
    box->selectAll();
    QTest::keyClicks(box, QString::fromStdString(typed));
  }

  static std::string element(const char* array, Long k) { return elementName(array, k).toStdString(); }

  double x(Long k, Long i) {
    main->GetVarX(k, i);
    return model.VarX;
  }

  /// The indices that the function call shows, as "i0,i1".
  std::string point() {
    std::string indices = text("txtFunIndex(0)");
    for (Long k = 1; k <= model.LastVar; ++k) indices += "," + text(element("txtFunIndex", k));
    return indices;
  }

  void expectAllBoxesShow(const PerVariable<Long>& at) {
    for (Long k = 0; k <= model.LastVar; ++k) {
      EXPECT_EQ(text(element("txtFunIndex", k)), std::to_string(at[k]));
      EXPECT_EQ(text(element("txtVarIndex", k)), std::to_string(at[k]));
      EXPECT_EQ(text(element("txtVar", k)), numberText(x(k, at[k])));
    }
    EXPECT_EQ(text("txtFun"), numberText(model.F(at[0], at[1], at[2], at[3])));
    EXPECT_EQ(model.StartIdx, at);
  }

  Dialogs dialogs;
  Dimension model;
  QPointer<frmTavimor> main;
  QPointer<frmFun> window;
};

}  // namespace tavimor
