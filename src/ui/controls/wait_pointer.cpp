#include "ui/controls/wait_pointer.h"

#include <QCursor>
#include <QGuiApplication>

namespace tavimor {

WaitPointer::WaitPointer() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }

WaitPointer::~WaitPointer() { QGuiApplication::restoreOverrideCursor(); }

}  // namespace tavimor
