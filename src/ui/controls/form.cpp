#include "ui/controls/form.h"

#include <QCloseEvent>
#include <QWindow>

namespace tavimor {

namespace {

QVector<Form*>& forms() {
  static QVector<Form*> list;
  return list;
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
  create();
  windowHandle()->setTransientParent(other.windowHandle());
  show();
  raise();
  activateWindow();
}

const QVector<Form*>& Form::openForms() { return forms(); }

void Form::closeEvent(QCloseEvent* event) {
  event->accept();
  unload();
}

}  // namespace tavimor
