#include "ui/controls/form.h"

#include <QApplication>
#include <QCloseEvent>
#include <QThread>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <utility>

namespace tavimor {

namespace {

QVector<Form*>& forms() {
  static QVector<Form*> list;
  return list;
}

// A dialog runs an event loop of its own within that of the program, and its event procedure waits for its end.
bool isWithinDialog() { return QThread::currentThread()->loopLevel() > 1; }

// A dialog that is modal to one window leaves the others alone, the help for instance.
bool isBehindDialog(const QWidget& form) {
  const QWidget* dialog = QApplication::activeModalWidget();
  if (dialog == nullptr || dialog->windowModality() == Qt::ApplicationModal) return isWithinDialog();
  return dialog->parentWidget() != nullptr && dialog->parentWidget()->window() == &form;
}

}  // namespace

Form::Form(const QString& name) {
  setObjectName(name);
  forms().append(this);
}

Form::~Form() { forms().removeAll(this); }

void Form::unload() {
  if (!isOpen()) return;
  forms().removeAll(this);
  Form_Unload();
  hide();
  deleteLater();
}

void Form::unloadFromOutside() {
  constexpr int kPause = 10;  // milliseconds, in which a dialog that was called off comes to its end
  if (std::exchange(isEnding_, true)) return;
  auto* timer = new QTimer(this);
  connect(timer, &QTimer::timeout, this, &Form::unloadUnlessDialogIsOpen);
  timer->start(kPause);
}

void Form::unloadUnlessDialogIsOpen() {
  if (QWidget* dialog = QApplication::activeModalWidget()) {
    dialog->close();
  } else if (!isWithinDialog()) {
    unload();
  }
}

void Form::disable() {
  focusBeforeDisabled_ = focusWidget();
  setEnabled(false);
}

void Form::enable() {
  setEnabled(true);
  activateWindow();
  if (focusBeforeDisabled_ != nullptr) focusBeforeDisabled_->setFocus(Qt::ActiveWindowFocusReason);
}

void Form::showAbove(Form& other) {
  // Window managers keep dialogs above the window that they belong to, and other windows not.
  setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint);
  create();
  windowHandle()->setTransientParent(other.windowHandle());
  show();
  raise();
  activateWindow();
}

const QVector<Form*>& Form::openForms() { return forms(); }

bool Form::isAnyEnding() {
  return std::any_of(forms().begin(), forms().end(), [](const Form* form) { return form->isEnding(); });
}

void Form::closeEvent(QCloseEvent* event) {
  // Behind a dialog only the end of the session closes a form.
  event->setAccepted(!isBehindDialog(*this));
  if (event->isAccepted()) {
    unload();
  } else {
    unloadFromOutside();
  }
}

}  // namespace tavimor
