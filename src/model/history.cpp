#include "model/history.h"

#include <bit>
#include <cstdint>
#include <utility>

#include "model/value_lists.h"

namespace tavimor {

namespace {

bool isSameNumber(double a, double b) { return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b); }

std::size_t bytesOf(const Results& results) {
  std::size_t bytes = sizeof(double) * (results.fit.Coef.size() + results.fit.FitGrid.size());
  for (const std::string& line : results.lines) bytes += sizeof line + line.capacity();
  return bytes;
}

// The piece is shared where the steps on both sides of a state hold it.
template <class Piece>
void exchange(std::shared_ptr<Piece>& held, Piece& current) {
  if (held == nullptr) return;
  Piece next = held.use_count() == 1 ? std::move(*held) : *held;
  held = std::make_shared<Piece>(std::exchange(current, std::move(next)));
}

void exchangeTables(Problem& a, Problem& b) {
  for (Long k = 0; k < kMaxVariables; ++k) std::swap(valueList(a, k), valueList(b, k));
  std::swap(a.F, b.F);
}

void exchangeSpecifications(Problem& a, Problem& b) {
  std::swap(a, b);
  exchangeTables(a, b);
}

void exchangeFileName(std::string& current, const std::string& from, const std::string& to) {
  if (current == from) current = to;
}

}  // namespace

// The tables are set aside while the rest is copied.
Problem History::specificationOf(Problem& problem) {
  Problem tables;
  exchangeTables(tables, problem);
  Problem specification = problem;
  exchangeTables(tables, problem);
  return specification;
}

double& numberAt(Problem& problem, const ValuePlace& place) {
  if (place.variable) return valueOf(problem, *place.variable, place.index[*place.variable]);
  return problem.F(place.index);
}

void History::begin(const Change& change, const Entries& before, Problem& problem) {
  isTyping_ = false;
  Step step;
  step.change = change;
  step.small = Small{specificationOf(problem), before};
  add(std::move(step));
}

void History::beginValue(const Change& change, const ValuePlace& place, double newValue, Problem& problem) {
  if (goesOn(place)) {
    if (isSameNumber(newValue, steps_.back().number->value)) {
      steps_.pop_back();
      --position_;
      isTyping_ = false;
    }
    return;
  }
  if (isSameNumber(newValue, numberAt(problem, place))) return;
  Step step;
  step.change = change;
  step.number = Number{place, numberAt(problem, place)};
  add(std::move(step));
  isTyping_ = true;
}

bool History::goesOn(const ValuePlace& place) const {
  return isTyping_ && !canRedo() && canUndo() && steps_.back().number && steps_.back().number->place == place;
}

void History::add(Step step) {
  if (saved_ && *saved_ > position()) saved_.reset();
  steps_.erase(steps_.begin() + static_cast<std::ptrdiff_t>(position_), steps_.end());
  steps_.push_back(std::move(step));
  ++position_;
  forgetBeyondLimits();
}

// Both neighbours of the state take the piece, unless they have one from this state already: only the first one that is
// replaced is what the states beyond them had.
template <class Slot, class Piece>
void History::keep(Slot slot, Piece piece) {
  isTyping_ = false;
  const auto shared = std::make_shared<Piece>(std::move(piece));
  if (canUndo() && slot(steps_[position_ - 1]) == nullptr) slot(steps_[position_ - 1]) = shared;
  if (canRedo() && slot(steps_[position_]) == nullptr) slot(steps_[position_]) = shared;
  forgetBeyondLimits();
}

void History::keepValues(Long k, std::vector<double> values) {
  keep(
      [k](Step & step) -> auto& { return step.values[k]; }, std::move(values));
}

void History::keepFunction(Table4 function) {
  keep(
      [](Step & step) -> auto& { return step.function; }, std::move(function));
}

void History::keepResults(Results results) {
  constexpr std::size_t kShare = 4;  // a fit beyond this part of the room would push out what was typed
  if (tavimor::bytesOf(results) > limits_.bytes / kShare) results = {};
  keep(
      [](Step & step) -> auto& { return step.results; }, std::move(results));
}

void History::keepFileName(const std::string& before, const std::string& after) {
  if (canUndo()) steps_[position_ - 1].file = FileNames{before, after};
}

void History::exchangePieces(Step& step, Dimension& model, Shown& shown) {
  if (step.small) {
    exchangeSpecifications(step.small->specification, model);
    std::swap(step.small->entries, shown.entries);
  }
  for (Long k = 0; k < kMaxVariables; ++k) exchange(step.values[k], valueList(model, k));
  exchange(step.function, model.F);
  if (step.results == nullptr) return;
  Results current{std::move(static_cast<Fit&>(model)), std::move(shown.lines)};
  exchange(step.results, current);
  static_cast<Fit&>(model) = std::move(current.fit);
  shown.lines = std::move(current.lines);
}

void History::exchangeNumber(Step& step, Problem& problem) {
  if (step.number) std::swap(step.number->value, numberAt(problem, step.number->place));
}

Exchanged History::exchanged(const Step& step) {
  Exchanged result{step.change, {}, step.small.has_value(), step.results != nullptr};
  if (step.number) result.value = step.number->place;
  return result;
}

// The pieces first: they were replaced after the number was changed.
Exchanged History::undo(Dimension& model, Shown& shown) {
  isTyping_ = false;
  Step& step = steps_[--position_];
  exchangePieces(step, model, shown);
  exchangeNumber(step, model);
  if (step.file) exchangeFileName(model.FileName, step.file->after, step.file->before);
  return exchanged(step);
}

Exchanged History::redo(Dimension& model, Shown& shown) {
  isTyping_ = false;
  Step& step = steps_[position_++];
  exchangeNumber(step, model);
  exchangePieces(step, model, shown);
  if (step.file) exchangeFileName(model.FileName, step.file->before, step.file->after);
  return exchanged(step);
}

void History::setSaved() {
  isTyping_ = false;
  saved_ = position();
}

std::size_t History::bytesOf(const Step& step) {
  std::size_t bytes = sizeof step;
  for (const auto& values : step.values)
    if (values != nullptr) bytes += sizeof(double) * values->size();
  if (step.function != nullptr) bytes += sizeof(double) * step.function->size();
  if (step.results != nullptr) bytes += tavimor::bytesOf(*step.results);
  return bytes;
}

std::size_t History::bytes() const {
  std::size_t total = 0;
  for (const Step& step : steps_) total += bytesOf(step);
  return total;
}

void History::forgetBeyondLimits() {
  while (!steps_.empty() && (steps_.size() > limits_.steps || bytes() > limits_.bytes)) {
    if (position_ == 0) {
      steps_.pop_back();
      if (saved_ && *saved_ > forgotten_ + steps_.size()) saved_.reset();
      continue;
    }
    steps_.pop_front();
    --position_;
    ++forgotten_;
  }
}

}  // namespace tavimor
