#include "ui/start_up/display_check.h"

#include <QString>
#include <cstdio>
#include <cstdlib>

namespace tavimor {

namespace {

// The first thing that the toolkit had to say is the cause; what follows are its consequences.
QString& cause() {
  static QString text;
  return text;
}

void takeMessage(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text) {
  if (cause().isEmpty()) cause() = text.simplified();
  if (type != QtFatalMsg) return;
  std::fprintf(stderr, "tavimor: no window can be shown: %s\n", qUtf8Printable(cause()));
  std::fflush(stderr);
  std::_Exit(1);  // returning to the toolkit would abort
}

}  // namespace

DisplayCheck::DisplayCheck() { qInstallMessageHandler(takeMessage); }

DisplayCheck::~DisplayCheck() { qInstallMessageHandler(nullptr); }

}  // namespace tavimor
