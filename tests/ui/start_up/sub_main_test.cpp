#include "ui/start_up/SubMain.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <QMessageBox>
#include <QPointer>
#include <QTest>
#include <chrono>
#include <csignal>
#include <thread>

#include "platform/decimal_separator.h"
#include "platform/end_request.h"
#include "support/child_process.h"
#include "support/user_locale.h"
#include "ui/main_window/frmAbout.h"
#include "ui/main_window/frmTavimor.h"
#include "ui/support/dialogs.h"

namespace tavimor {
namespace {

class Start : public testing::Test {
 protected:
  ~Start() override {
    delete window;
    // What the program had to write back at its end must not reach the next test.
    locale.set("LC_ALL", "C");
    ReadDecimalSeparator();
  }

  void useComma() { locale.set("LC_ALL", test::kGermany); }

  void start() {
    QElapsedTimer lasting;
    lasting.start();
    window = Main(model);
    milliseconds = lasting.elapsed();
  }

  test::UserLocale locale;
  Dialogs dialogs;
  Dimension model;
  QPointer<frmTavimor> window;
  qint64 milliseconds = 0;
};

TEST_F(Start, WithAPointTheAboutWindowStandsForTwoToThreeSecondsBeforeTheMainWindow) {
  start();
  EXPECT_GE(milliseconds, 2000);
  EXPECT_LT(milliseconds, 4500);  // the making of the main window included, on a busy machine
  ASSERT_NE(window, nullptr);
  EXPECT_TRUE(window->isVisible());
  for (const Form* form : Form::openForms()) EXPECT_NE(form->objectName(), QStringLiteral("frmAbout"));
}

TEST_F(Start, WithACommaYesChangesItToAPointAndTheEndBringsItBack) {
  useComma();
  dialogs.expectAndPress("Yes");
  start();
  ASSERT_NE(window, nullptr);
  EXPECT_EQ(test::decimalSeparator(), ".");
  window->close();
  EXPECT_EQ(test::decimalSeparator(), ",");
  EXPECT_EQ(locale.text(), "LC_ALL=de_DE.UTF-8");
}

// A request to end that comes in the middle of the splash.
class AskedToEnd : public Start, public testing::WithParamInterface<int> {
 protected:
  AskedToEnd() {
    test::heedEndRequests();
    watchEndRequests();
  }
  ~AskedToEnd() override {
    watchEndRequests();  // forgets the request
    test::heedEndRequests();
  }

  void askSoon() {
    asking = std::thread([] {
      std::this_thread::sleep_for(std::chrono::milliseconds(400));
      kill(getpid(), GetParam());
    });
  }

  std::thread asking;
};

TEST_P(AskedToEnd, DuringTheSplashItEndsAtOnceWithTheSeparatorBack) {
  useComma();
  dialogs.expectAndPress("Yes");
  askSoon();
  start();
  asking.join();
  EXPECT_EQ(window, nullptr);
  EXPECT_LT(milliseconds, 2000);
  EXPECT_TRUE(Form::openForms().isEmpty());
  EXPECT_EQ(locale.text(), "LC_ALL=de_DE.UTF-8");
}

TEST_P(AskedToEnd, DuringTheQuestionItEndsToo) {
  useComma();
  dialogs.expect([](QDialog& /*box*/) { std::raise(GetParam()); });
  start();
  EXPECT_EQ(window, nullptr);
  EXPECT_EQ(locale.text(), "LC_ALL=de_DE.UTF-8");
}

INSTANTIATE_TEST_SUITE_P(Signals, AskedToEnd, testing::Values(SIGTERM, SIGHUP));

class Declining : public Start, public testing::WithParamInterface<const char*> {};

TEST_P(Declining, EndsWithNothingChangedAndNoWindowShown) {
  useComma();
  dialogs.expectAndPress(QString::fromLatin1(GetParam()));
  start();
  EXPECT_EQ(window, nullptr);
  EXPECT_TRUE(Form::openForms().isEmpty());
  EXPECT_LT(milliseconds, 2000);
  EXPECT_EQ(locale.text(), "LC_ALL=de_DE.UTF-8");
}

INSTANTIATE_TEST_SUITE_P(Answers, Declining, testing::Values("No", "Cancel"));

TEST_F(Start, EscapeIsCancel) {
  useComma();
  dialogs.expectAndCancel();
  EXPECT_EQ(DecimalPoint(), StartUp::Declined);
}

TEST_F(Start, EnterIsYes) {
  useComma();
  dialogs.expect([](QDialog& box) { QTest::keyClick(&box, Qt::Key_Return); });
  EXPECT_EQ(DecimalPoint(), StartUp::GoesOn);
  EXPECT_EQ(test::decimalSeparator(), ".");
  RestoreDecimalSeparator();
}

TEST_F(Start, TheQuestionIsACriticalMessage) {
  useComma();
  dialogs.expect([](QDialog& dialog) {
    auto& box = dynamic_cast<QMessageBox&>(dialog);
    EXPECT_EQ(box.windowTitle(), QStringLiteral("Decimal Comma Warning!"));
    EXPECT_EQ(box.icon(), QMessageBox::Critical);
    EXPECT_EQ(box.standardButtons(), QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
    EXPECT_EQ(box.text().toStdString(),
              "Proper operation of this application requires the use of the DECIMAL POINT.\n"
              "Your system is currently using the DECIMAL COMMA.\n"
              "\n"
              "Do you wish to temporarily change this system setting to decimal point?\n"
              "(Upon exiting, this application will restore your setting.)\n"
              "(See HELP FILE or visit www.tavimor.example for instructions on how to change MANUALLY)\n"
              "\n"
              "Press YES to change.");
    QTest::keyClick(&box, Qt::Key_Escape);
  });
  DecimalPoint();
}

TEST_F(Start, TheEndOfTheSessionBringsItBackToo) {
  useComma();
  ReadDecimalSeparator();
  SetDecimalPoint();
  (new frmTavimor(model))->show();
  QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
  EXPECT_EQ(QApplication::exec(), 0);
  EXPECT_TRUE(Form::openForms().isEmpty());
  EXPECT_EQ(test::decimalSeparator(), ",");
}

TEST_F(Start, TheEndWritesBackASeparatorThatNobodyChangedHere) {
  locale.set("LANG", test::kGermany);
  ReadDecimalSeparator();
  SetDecimalPoint();  // by another part of the system, as it were
  (new frmTavimor(model))->close();
  EXPECT_EQ(test::decimalSeparator(), ",");
}

}  // namespace
}  // namespace tavimor
