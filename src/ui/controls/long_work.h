#pragma once

#include <QEventLoop>
#include <QObject>
#include <atomic>
#include <chrono>
#include <exception>
#include <functional>
#include <thread>

#include "runtime/progress.h"
#include "ui/controls/work_display.h"

namespace tavimor {

/// How a work has ended.
enum class WorkEnd { Done, CalledOff };

/// Does one piece of work beside the event thread, so that windows are painted and the program can be ended while it
/// lasts. For the user the program is busy: keys and clicks are swallowed, but for Escape and the display's Stop
/// button, which call the work off. The display shows itself after half a second.
///
/// The work must not change what the event thread looks at, and must not touch a widget.
class LongWork : public QObject {
  Q_OBJECT

 public:
  /// `isEnding` is asked by the event thread: true calls the work off as well.
  LongWork(WorkDisplay& display, std::function<bool()> isEnding);
  ~LongWork() override;

  /// Runs the work and returns when it has ended. CalledOff where it left by way of goOn or `progress`.
  /// Errors: those of the work.
  WorkEnd run(const std::function<void()>& work);

  /// For the work, from any of its threads: whether to give up, and whom to tell how far it has come.
  bool isCalledOff() const { return isCalledOff_; }
  void tell(double share) { share_ = share; }

  /// Tells as well, and leaves the work where it is called off; for what knows no other way out.
  void tellOrLeave(double share);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  using Clock = std::chrono::steady_clock;

  void begin(const std::function<void()>& work);
  bool hasEndedSoon() const;
  void waitInLoop();
  void look();

  WorkDisplay& display_;
  std::function<bool()> isEnding_;
  std::thread thread_;
  std::exception_ptr failure_;  // of the work; looked at when it has ended
  std::atomic<bool> hasEnded_ = false;
  std::atomic<bool> isCalledOff_ = false;
  std::atomic<double> share_ = 0.0;
  Clock::time_point begun_ = Clock::now();
  QEventLoop loop_;
};

}  // namespace tavimor
