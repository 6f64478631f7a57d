#include "ui/controls/application.h"

#include <QFontInfo>
#include <QIcon>
#include <QPalette>
#include <clocale>
#include <new>

#include "runtime/run_time_error.h"
#include "ui/controls/error_box.h"
#include "ui/controls/fonts.h"

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

constexpr int kIconSizes[] = {16, 24, 32, 48, 64, 128, 256};

QIcon programIcon() {
  QIcon icon;
  for (const int size : kIconSizes) icon.addFile(QStringLiteral(":/icons/tavimor-%1.png").arg(size));
  return icon;
}

#ifdef Q_OS_WIN
// Wine has none of the fonts that it names for windows, menus and messages.
void replaceMissingFonts() {
  const auto isMissing = [](const QFont& font) { return !QFontInfo(font).exactMatch(); };
  if (isMissing(QApplication::font())) QApplication::setFont(sansSerifFont());
  for (const char* widget : {"QMenu", "QMenuBar", "QMessageBox", "QTipLabel"})
    if (isMissing(QApplication::font(widget))) QApplication::setFont(sansSerifFont(), widget);
}
#endif

}  // namespace

Application::Application(int& argc, char** argv)
    : QApplication(argc, argv), end_([](int exitCode) { QCoreApplication::exit(exitCode); }) {
  setApplicationName(QStringLiteral("Tavimor"));
  setWindowIcon(programIcon());
  setDesktopFileName(QStringLiteral("tavimor"));  // how a desktop finds the entry that belongs to a window
#ifdef Q_OS_WIN
  replaceMissingFonts();
#endif
  setPalette(withLegibleDisabledText(palette()));
  // The application has set the user's locale; numbers are written with a point everywhere.
  std::setlocale(LC_NUMERIC, "C");
}

bool Application::notify(QObject* receiver, QEvent* event) {
  try {
    return QApplication::notify(receiver, event);
  } catch (const Failure& failure) {
    fail(failure);
  } catch (const std::bad_alloc&) {
    fail(RunTimeError(ErrorNumber::OutOfMemory));
  }
  return true;
}

void Application::fail(const Failure& failure) {
  if (noteFailure_) noteFailure_();
  reportFailure(failure, saveProblem_);
  end_(1);
}

}  // namespace tavimor
