#include "ui/controls/application.h"

#include <QPalette>
#include <clocale>
#include <new>

#include "ui/controls/error_box.h"

namespace tavimor {

namespace {

// A field that is disabled still holds what the user wants to read: halfway between the text and its ground.
QPalette withLegibleDisabledText(QPalette palette) {
  const QColor text = palette.color(QPalette::Active, QPalette::Text);
  const QColor ground = palette.color(QPalette::Active, QPalette::Window);
  const auto halfway = [](int a, int b) { return (a + b) / 2; };
  palette.setColor(QPalette::Disabled, QPalette::Text,
                   QColor(halfway(text.red(), ground.red()), halfway(text.green(), ground.green()),
                          halfway(text.blue(), ground.blue())));
  return palette;
}

}  // namespace

Application::Application(int& argc, char** argv)
    : QApplication(argc, argv), end_([](int exitCode) { QCoreApplication::exit(exitCode); }) {
  setApplicationName(QStringLiteral("Tavimor"));
  setPalette(withLegibleDisabledText(palette()));
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
