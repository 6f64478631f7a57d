#pragma once

#include <QObject>

#include "model/history.h"
#include "ui/main_window/frmTavimor_controls.h"

namespace tavimor {

/// Writes down what is done in the main window and its data windows, step by step, so that it can be undone: see
/// History. Each event procedure tells it before it changes something.
class StepRecorder : public QObject {
  Q_OBJECT

 public:
  StepRecorder(MainControls& controls, Dimension& model);

  /// A text that was typed since the last step becomes a step of its own: when its field is left, and before anything
  /// else is done.
  void takeTyped();

  /// Begins a step. What the fields show when it ends is told by settle().
  void begin(const Change& change);
  void settle();

  /// Each is told what is about to be replaced; see History.
  void keepProblem();
  void keepValues(Long v);
  void keepFunction();
  void keepResults();

  /// Keeps the function and lays out an empty one. Errors: as Table4::redim; the function then stays.
  void replaceFunction(const PerVariable<Long>& last);

  void valueChanging(Long v, Long i, double newValue);
  void valueDeleting(Long v, Long r);
  void functionValueChanging(const PerVariable<Long>& point, double newValue);
  void endTyping() { history_.endTyping(); }

  /// The values of all variables, before and after equally spaced ones are made anew.
  using Values = PerVariable<std::vector<double>>;
  Values values() const { return {model_.X0, model_.X1, model_.X2, model_.X3}; }
  void keepReplaced(Values before);

  /// The step has changed the name of the problem's file, which was this.
  void keepFileName(const std::string& before) { history_.keepFileName(before, model_.FileName); }

  void setSaved();
  bool isSaved() const { return history_.isSaved() && !typed(); }

  /// The change that would be undone or done again, in words.
  std::optional<Change> toUndo() const;
  std::optional<Change> toRedo() const;
  std::size_t position() const { return history_.position(); }

  /// Takes the last step back, or does it again, in the model; `shown` is what the window is to show then. A text that
  /// was typed since is a step, too. Nothing where there is no step.
  std::optional<Exchanged> undo(Shown& shown);
  std::optional<Exchanged> redo(Shown& shown);

  Entries entries() const;

 signals:
  /// There is another step to undo or to redo, or the problem is saved now.
  void Changed();

 private:
  Shown shown() const;
  std::optional<Change> typed() const;

  MainControls& controls_;
  Dimension& model_;
  History history_;
  EntryTexts settledTexts_;  // as they were when the last step ended
};

}  // namespace tavimor
