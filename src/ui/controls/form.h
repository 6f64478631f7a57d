#pragma once

#include <QPointer>
#include <QVector>
#include <QWidget>

namespace tavimor {

/// A window of the program. A derived class calls its Form_Load as the last step of its constructor.
///
/// Forms live on the heap. One that is closed by the user, or unloaded by the program, runs Form_Unload once, leaves
/// the set of open forms and is deleted as soon as its events are over: keep a form by QPointer, or look it up.
class Form : public QWidget {
  Q_OBJECT

 public:
  explicit Form(const QString& name);
  ~Form() override;

  /// What closing the form from its title bar does. Once it has begun, it does nothing more.
  void unload();

  /// Unloads the form at a request from outside, which may come while a dialog waits for its answer: dialogs are called
  /// off, and the unloading begins when the event procedures that opened them have come to their ends.
  void unloadFromOutside();

  /// True from a request from outside on: what an event procedure still does, the user has not asked for.
  bool isEnding() const { return isEnding_; }
  static bool isAnyEnding();

  /// Shown but refusing keys and clicks, as while another form is worked in; enable() brings the focus back.
  void disable();
  void enable();

  /// Shows the form and keeps it above another one, so that it is never lost behind a form that it has disabled.
  void showAbove(Form& other);

  /// The forms that are loaded, shown or hidden, in the order in which they were made.
  static const QVector<Form*>& openForms();

  /// The first of them that is of this class; null where there is none.
  template <class T>
  static T* openForm() {
    for (Form* form : openForms())
      if (auto* found = qobject_cast<T*>(form)) return found;
    return nullptr;
  }

  /// False from the beginning of its unloading on.
  bool isOpen() const { return openForms().contains(const_cast<Form*>(this)); }

 protected:
  virtual void Form_Unload() {}
  void closeEvent(QCloseEvent* event) override;

 private:
  void unloadUnlessDialogIsOpen();

  QPointer<QWidget> focusBeforeDisabled_;
  bool isEnding_ = false;
};

}  // namespace tavimor
