#include "ui/controls/application.h"

#include <clocale>
#include <new>

#include "ui/controls/error_box.h"

namespace tavimor {

Application::Application(int& argc, char** argv)
    : QApplication(argc, argv), end_([](int exitCode) { QCoreApplication::exit(exitCode); }) {
  setApplicationName(QStringLiteral("Tavimor"));
  // The application has set the user's locale; numbers are written with a point everywhere.
  std::setlocale(LC_NUMERIC, "C");
}

bool Application::notify(QObject* receiver, QEvent* event) {
  try {
    return QApplication::notify(receiver, event);
  } catch (const RunTimeError& error) {
    fail(error);
  } catch (const std::bad_alloc&) {
    fail(RunTimeError(ErrorNumber::OutOfMemory));
  }
  return true;
}

void Application::fail(const RunTimeError& error) {
  reportRunTimeError(error, saveProblem_);
  end_(1);
}

}  // namespace tavimor
