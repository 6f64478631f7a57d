#pragma once

#include <QApplication>
#include <functional>
#include <string>

#include "runtime/failure.h"

namespace tavimor {

/// The application, whose event dispatcher catches what no event procedure has handled. A failure, running out of
/// memory included, is reported in the critical box (see reportFailure), and the program ends with exit code
/// 1: no form is unloaded, and no further event is dispatched to any.
class Application : public QApplication {
  Q_OBJECT

 public:
  Application(int& argc, char** argv);

  /// Writes the problem as it stands to a path; offered by the error box. Errors: a Failure.
  void setProblemSaver(std::function<void(const std::string& path)> save) { saveProblem_ = std::move(save); }

  /// Called before a failure is reported, so that nothing is lost whatever comes then.
  void setFailureNotice(std::function<void()> notice) { noteFailure_ = std::move(notice); }

  /// What ends the program; a test puts its own in the place of leaving the event loop.
  void setEnding(std::function<void(int exitCode)> end) { end_ = std::move(end); }

  bool notify(QObject* receiver, QEvent* event) override;

  /// Reports the failure and ends the program, for code that runs outside of any event.
  void fail(const Failure& failure);

 private:
  std::function<void(const std::string&)> saveProblem_;
  std::function<void()> noteFailure_;
  std::function<void(int)> end_;
};

}  // namespace tavimor
