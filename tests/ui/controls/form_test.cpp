#include "ui/controls/form.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <QWindow>

namespace tavimor {
namespace {

class CountingForm : public Form {
 public:
  CountingForm(const QString& name, int& unloads) : Form(name), edit(this), unloads_(unloads) {}

  QLineEdit edit;

 private:
  void Form_Unload() override {
    ++unloads_;
    unload();  // as a form does that closes all forms, itself among them
  }

  int& unloads_;
};

class Forms : public testing::Test {
 protected:
  CountingForm* make() {
    auto* form = new CountingForm(QStringLiteral("frmTest"), unloads);
    pointer = form;
    return form;
  }

  void TearDown() override {
    delete pointer;
    EXPECT_TRUE(Form::openForms().isEmpty());
  }

  int unloads = 0;
  QPointer<Form> pointer;
};

TEST_F(Forms, AFormIsOpenFromItsMakingOn) {
  Form* form = make();
  EXPECT_EQ(Form::openForms(), QVector<Form*>{form});
  EXPECT_EQ(form->objectName(), QStringLiteral("frmTest"));
}

TEST_F(Forms, ClosingUnloadsOnceAndDeletes) {
  make()->show();
  pointer->close();
  EXPECT_EQ(unloads, 1);
  EXPECT_TRUE(Form::openForms().isEmpty());
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(pointer.isNull());
}

TEST_F(Forms, AFormThatWasNeverShownCanBeUnloaded) {
  make()->unload();
  EXPECT_EQ(unloads, 1);
  EXPECT_FALSE(pointer->isOpen());
}

TEST_F(Forms, HidingUnloadsNothing) {
  make()->show();
  pointer->hide();
  EXPECT_EQ(unloads, 0);
  EXPECT_TRUE(pointer->isOpen());
}

TEST_F(Forms, ADisabledFormGivesItsFocusBackWhenEnabled) {
  CountingForm* form = make();
  form->show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(form));
  form->edit.setFocus();
  form->disable();
  EXPECT_FALSE(form->isEnabled());
  EXPECT_FALSE(form->edit.hasFocus());
  form->enable();
  EXPECT_TRUE(form->edit.hasFocus());
}

TEST_F(Forms, AFormIsShownAboveAnotherOneTimeAndAgain) {
  CountingForm* form = make();
  CountingForm below(QStringLiteral("frmBelow"), unloads);
  const auto isActive = [](const QWidget* window) {
    return QTest::qWaitFor([&] { return QApplication::activeWindow() == window; });
  };
  below.show();
  EXPECT_TRUE(isActive(&below));
  for (int n = 0; n < 2; ++n) {
    form->showAbove(below);
    EXPECT_TRUE(isActive(form));
    EXPECT_EQ(form->windowHandle()->transientParent(), below.windowHandle());
    form->hide();
    below.enable();
    EXPECT_TRUE(isActive(&below));
  }
  form->unload();
}

}  // namespace
}  // namespace tavimor
