#include "ui/start_up/SubMain.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QThread>
#include <QWindow>
#include <algorithm>
#include <chrono>
#include <optional>
#include <thread>
#include <vector>

#include "platform/locale.h"
#include "ui/controls/message_box.h"
#include "ui/main_window/frmAbout.h"
#include "ui/main_window/frmTavimor.h"

namespace tavimor {

namespace {

constexpr char kPoint[] = ".";
constexpr char kNotice1[] = "Copyright 2026 the Tavimor developers";
constexpr char kNotice2[] = "Free software under the MIT License";
constexpr char kWebAddress[] = "www.tavimor.example";

std::optional<std::string> savedSeparator;

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

bool setSeparator(const std::string& text) {
  return SetLocaleInfo(GetUserDefaultLCID(), LocaleItem::DecimalSeparator, text);
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

// Until the third whole second has begun: two to three seconds, in which no event is dispatched.
void waitForThirdSecond() {
  using namespace std::chrono;
  std::this_thread::sleep_until(floor<seconds>(steady_clock::now()) + seconds(3));
}

}  // namespace

void ReadDecimalSeparator() {
  const LocaleId user = GetUserDefaultLCID();
  std::vector<char> text(GetLocaleInfo(user, LocaleItem::DecimalSeparator, {}));
  GetLocaleInfo(user, LocaleItem::DecimalSeparator, text);
  savedSeparator.emplace(text.begin(), std::find(text.begin(), text.end(), '\0'));
}

void SetDecimalPoint() { setSeparator(kPoint); }

void RestoreDecimalSeparator() {
  if (savedSeparator) setSeparator(*savedSeparator);
}

StartUp DecimalPoint() {
  ReadDecimalSeparator();
  if (savedSeparator == kPoint) return StartUp::GoesOn;
  switch (askCritical(decimalCommaWarning(), QStringLiteral("Decimal Comma Warning!"))) {
    case Answer::Yes: SetDecimalPoint(); return StartUp::GoesOn;
    case Answer::No:
    case Answer::Cancel: return StartUp::Declined;
  }
  return StartUp::GoesOn;
}

frmAbout& ShowAbout() {
  if (auto* shown = Form::openForm<frmAbout>()) {
    shown->raise();
    shown->activateWindow();
    return *shown;
  }
  auto* about = new frmAbout;
  about->show();
  for (const char* line : {"", "", "", kTitle, "", kNotice1, "", kNotice2, "", kWebAddress})
    about->Print(QLatin1String(line));
  return *about;
}

frmTavimor* Main(Dimension& model) {
  if (DecimalPoint() == StartUp::Declined) return nullptr;
  frmAbout& splash = ShowAbout();
  dispatchUntilShown(splash);
  waitForThirdSecond();
  splash.unload();
  auto* window = new frmTavimor(model);
  window->show();
  return window;
}

}  // namespace tavimor
