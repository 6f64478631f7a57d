#include "ui/start_up/SubMain.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QThread>
#include <QWindow>
#include <chrono>
#include <thread>

#include "platform/decimal_separator.h"
#include "platform/end_request.h"
#include "ui/controls/message_box.h"
#include "ui/controls/polite_end.h"
#include "ui/main_window/frmAbout.h"
#include "ui/main_window/frmTavimor.h"

namespace tavimor {

namespace {

QString decimalCommaWarning() {
  return QStringLiteral(
             "Proper operation of this application requires the use of the DECIMAL POINT.\r"
             "Your system is currently using the DECIMAL COMMA.\r\r"
             "Do you wish to temporarily change this system setting to decimal point?\r"
             "(Upon exiting, this application will restore your setting.)\r"
             "(See HELP FILE or visit %1 for instructions on how to change MANUALLY)\r\r"
             "Press YES to change.")
      .arg(QLatin1String(kWebAddress));
}

// The window system shows a window in its own time.
void dispatchUntilShown(const QWidget& window) {
  constexpr int kPatience = 1000;  // milliseconds
  QElapsedTimer waiting;
  waiting.start();
  QApplication::processEvents();
  while (!window.windowHandle()->isExposed() && !waiting.hasExpired(kPatience)) {
    QThread::msleep(1);
    QApplication::processEvents();
  }
}

// Until the third whole second has begun: two to three seconds, in which no event is dispatched. A request to end the
// program is not kept waiting.
void waitForThirdSecond() {
  using namespace std::chrono;
  const auto end = floor<seconds>(steady_clock::now()) + seconds(3);
  while (steady_clock::now() < end && !endIsRequested()) std::this_thread::sleep_for(milliseconds(10));
}

}  // namespace

StartUp DecimalPoint() {
  if (ReadDecimalSeparator() == ".") return StartUp::GoesOn;
  const CallsOffDialogs callsOffDialogs;
  switch (askCritical(decimalCommaWarning(), QStringLiteral("Decimal Comma Warning!"))) {
    case Answer::Yes: SetDecimalPoint(); return StartUp::GoesOn;
    case Answer::No:
    case Answer::Cancel: return StartUp::Declined;
  }
  return StartUp::GoesOn;
}

frmTavimor* Main(Dimension& model) {
  if (DecimalPoint() == StartUp::Declined) return nullptr;
  frmAbout& splash = ShowAbout();
  dispatchUntilShown(splash);
  waitForThirdSecond();
  splash.unload();
  if (endIsRequested()) {
    RestoreDecimalSeparator();
    return nullptr;
  }
  auto* window = new frmTavimor(model);
  window->show();
  return window;
}

}  // namespace tavimor
