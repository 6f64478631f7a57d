#pragma once

#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "model/Dimension.h"
#include "model/entries.h"

namespace tavimor {

/// Where one number of a problem stands: value number index[variable] of a variable, or without one the value of the
/// function at the grid point `index`.
struct ValuePlace {
  std::optional<Long> variable;
  PerVariable<Long> index{};

  bool operator==(const ValuePlace&) const = default;
};

double& numberAt(Problem& problem, const ValuePlace& place);

/// A fit and the lines of its listing.
struct Results {
  Fit fit;
  std::vector<std::string> lines;
};

/// What the window shows beside the model.
struct Shown {
  Entries entries;
  std::vector<std::string> lines;  // of the list of results
};

/// What undoing or redoing a step has exchanged.
struct Exchanged {
  Change change;
  std::optional<ValuePlace> value;
  bool hasEntries = false;
  bool hasResults = false;
};

/// How much a history holds.
struct HistoryLimits {
  std::size_t steps = 200;
  std::size_t bytes = std::size_t{256} << 20;
};

/// The changes of a problem, to be undone and done again.
///
/// A step is begun before anything changes. It takes the small things as they were, the specification and the fields;
/// a change of one number takes that number alone. Whatever large piece is replaced from then on until the next step
/// (values, function, results) is handed to `keep`, also where no step has done it: a fit belongs to a state, and
/// comes back with that state. So a step holds just what is different on its other side, undoing and redoing it
/// exchange that with the model, and no large piece is ever there twice.
///
/// Beyond the limits the oldest steps go. Results too large to be kept beside others are given up alone: the state then
/// comes back without a fit.
class History {
 public:
  explicit History(HistoryLimits limits = {}) : limits_(limits) {}

  /// Begins a step; what had been undone cannot be redone any more. `before` are the fields as they were. The problem
  /// is not changed.
  void begin(const Change& change, const Entries& before, Problem& problem);

  /// Begins a step that changes one number, or goes on with the last one where that changes the same number and nothing
  /// has come between. A number that is typed back to what it was ends as no step.
  void beginValue(const Change& change, const ValuePlace& place, double newValue, Problem& problem);

  /// The next change of the same number is a step of its own.
  void endTyping() { isTyping_ = false; }

  /// The values of variable k, the function, the results, as they were before they are replaced.
  void keepValues(Long k, std::vector<double> values);
  void keepFunction(Table4 function);
  void keepResults(Results results);

  /// The step that was begun last has changed the file's name. Undone, the name comes back unless it was changed again.
  void keepFileName(const std::string& before, const std::string& after);

  bool canUndo() const { return position_ > 0; }
  bool canRedo() const { return position_ < steps_.size(); }

  /// Whether the last step has changed one number alone.
  bool lastIsOfOneNumber() const { return canUndo() && steps_[position_ - 1].number.has_value(); }

  const Change& toUndo() const { return steps_[position_ - 1].change; }
  const Change& toRedo() const { return steps_[position_].change; }

  /// Takes the last step back, or does it again, in the model and in what the window is to show.
  Exchanged undo(Dimension& model, Shown& shown);
  Exchanged redo(Dimension& model, Shown& shown);

  /// How many steps have led here, those included that are no longer held.
  std::size_t position() const { return forgotten_ + position_; }

  /// The state as it is now is on the disk.
  void setSaved();
  bool isSaved() const { return saved_ == position(); }

  std::size_t bytes() const;

 private:
  struct Small {
    Problem specification;  // all of a problem but its tables, which are empty
    Entries entries;
  };
  struct Number {
    ValuePlace place;
    double value;
  };
  struct FileNames {
    std::string before, after;
  };
  struct Step {
    Change change;
    std::optional<Small> small;
    std::optional<Number> number;
    std::optional<FileNames> file;
    PerVariable<std::shared_ptr<std::vector<double>>> values;
    std::shared_ptr<Table4> function;
    std::shared_ptr<Results> results;
  };

  static Problem specificationOf(Problem& problem);
  static std::size_t bytesOf(const Step& step);
  static void exchangePieces(Step& step, Dimension& model, Shown& shown);
  static void exchangeNumber(Step& step, Problem& problem);
  static Exchanged exchanged(const Step& step);
  template <class Slot, class Piece>
  void keep(Slot slot, Piece piece);
  bool goesOn(const ValuePlace& place) const;
  void add(Step step);
  void forgetBeyondLimits();

  HistoryLimits limits_;
  std::deque<Step> steps_;
  std::size_t position_ = 0;   // the steps before it are done, those from it on undone
  std::size_t forgotten_ = 0;  // steps that were done and are held no longer
  std::optional<std::size_t> saved_ = 0;
  bool isTyping_ = false;
};

}  // namespace tavimor
