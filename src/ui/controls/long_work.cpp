#include "ui/controls/long_work.h"

#include <QApplication>
#include <QKeyEvent>
#include <QTimer>
#include <system_error>

namespace tavimor {

namespace {

using namespace std::chrono_literals;

constexpr auto kSoon = 50ms;       // work that ends sooner is waited for, and what was typed ahead comes after it
constexpr auto kPatience = 500ms;  // work that ends sooner shows no progress
constexpr int kInterval = 50;      // milliseconds between two looks

struct LeftByItself {};

bool isInput(QEvent::Type type) {
  switch (type) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::InputMethod:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TabletPress:
    case QEvent::TabletRelease:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop: return true;
    default: return false;
  }
}

}  // namespace

LongWork::LongWork(WorkDisplay& display, std::function<bool()> isEnding)
    : display_(display), isEnding_(std::move(isEnding)) {}

LongWork::~LongWork() {
  isCalledOff_ = true;
  if (thread_.joinable()) thread_.join();
}

void LongWork::tellOrLeave(double share) {
  if (isCalledOff_) throw LeftByItself();
  share_ = share;
}

WorkEnd LongWork::run(const std::function<void()>& work) {
  begin(work);
  if (!hasEndedSoon()) waitInLoop();
  if (thread_.joinable()) thread_.join();
  try {
    if (failure_) std::rethrow_exception(failure_);
    return WorkEnd::Done;
  } catch (const LeftByItself&) {
    return WorkEnd::CalledOff;
  }
}

// Where no thread is to be had the work is done by this one.
void LongWork::begin(const std::function<void()>& work) {
  const auto doWork = [this, work] {
    try {
      work();
    } catch (...) {
      failure_ = std::current_exception();
    }
    hasEnded_ = true;
  };
  try {
    thread_ = std::thread(doWork);
  } catch (const std::system_error&) {
    doWork();
  }
}

bool LongWork::hasEndedSoon() const {
  while (!hasEnded_ && Clock::now() < begun_ + kSoon) std::this_thread::sleep_for(1ms);
  return hasEnded_;
}

void LongWork::waitInLoop() {
  QTimer timer;
  connect(&timer, &QTimer::timeout, this, &LongWork::look);
  timer.start(kInterval);
  const QMetaObject::Connection stop =
      connect(display_.cmdStop, &QPushButton::clicked, this, [this] { isCalledOff_ = true; });
  qApp->installEventFilter(this);
  loop_.exec();
  qApp->removeEventFilter(this);
  disconnect(stop);
  display_.hide();
}

void LongWork::look() {
  if (hasEnded_) return loop_.quit();
  if (isEnding_()) isCalledOff_ = true;
  if (Clock::now() >= begun_ + kPatience) display_.showShare(share_);
}

// Windows of the system get their events: these come on to the widgets, and are looked at there.
bool LongWork::eventFilter(QObject* watched, QEvent* event) {
  if (!isInput(event->type()) || watched->isWindowType() || watched == display_.cmdStop) return false;
  const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
  if (isKey && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) isCalledOff_ = true;
  event->accept();
  return true;
}

}  // namespace tavimor
