#include "ui/main_window/problem_keeper.h"

#include <QCoreApplication>
#include <QEvent>
#include <algorithm>
#include <new>
#include <utility>

#include "model/value_lists.h"

namespace tavimor {

namespace {

using namespace std::chrono_literals;

constexpr auto kDelay = 1000ms;         // from a change to its writing: it is on a slow disk within two seconds
constexpr std::size_t kLarge = 50'000;  // numbers: fewer are written in no time but that of the disk
constexpr int kRestPerWriting = 20;     // writing a large one takes no more than one part in so many of the time
constexpr auto kWatchInterval = 100ms;

bool isLarge(const Problem& problem) {
  std::size_t numbers = problem.F.size();
  for (Long k = 0; k <= problem.LastVar; ++k) numbers += valueList(problem, k).size();
  return numbers >= kLarge;
}

}  // namespace

ProblemKeeper::ProblemKeeper(const std::string& stateFolder, TakeProblem take)
    : take_(std::move(take)), writer_(stateFolder) {
  look_.setSingleShot(true);
  connect(&look_, &QTimer::timeout, this, &ProblemKeeper::look);
  connect(&watch_, &QTimer::timeout, this, &ProblemKeeper::takeNoteOfWriting);
  QCoreApplication::instance()->installEventFilter(this);
}

bool ProblemKeeper::eventFilter(QObject*, QEvent* event) {
  switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::InputMethod:
    case QEvent::Shortcut:
    case QEvent::MouseButtonRelease:
    case QEvent::Drop: lookLater(); break;
    default: break;
  }
  return false;
}

void ProblemKeeper::lookLater() {
  if (look_.isActive()) return;
  const auto rest = handedOver_ + kRestPerWriting * writer_.lastDuration() - Clock::now();
  look_.start(std::max<std::chrono::milliseconds>(kDelay, std::chrono::ceil<std::chrono::milliseconds>(rest)));
}

void ProblemKeeper::look() {
  if (writer_.isIdle())
    keepUnlessSaved();
  else
    look_.start(kWatchInterval);
}

// Where there is no memory for a copy, the user goes on without one.
void ProblemKeeper::keepUnlessSaved() {
  try {
    keepUnlessSaved(take_());
  } catch (const std::bad_alloc&) {
    tellRefusal(QStringLiteral("there is too little memory"));
  }
}

void ProblemKeeper::keepUnlessSaved(std::optional<SessionProblem> now) {
  if (!now) return;
  if (saved_ && haveSameWork(*now, *saved_)) {
    if (std::exchange(kept_, nullptr)) writer_.forget();
    return;
  }
  if (kept_ && haveSameWork(*now, *kept_)) return;
  kept_ = std::make_shared<const SessionProblem>(std::move(*now));
  handedOver_ = isLarge(kept_->problem) ? Clock::now() : Clock::time_point();
  writer_.keep(kept_);
  watch_.start(kWatchInterval);
}

void ProblemKeeper::takeNoteOfWriting() {
  if (!writer_.isIdle()) return;
  watch_.stop();
  if (const auto failure = writer_.takeFailure()) {
    kept_ = nullptr;
    tellRefusal(QString::fromStdString(*failure));
  } else if (restored_ && writer_.hasKept()) {
    removeRestorable(*std::exchange(restored_, std::nullopt));
  }
}

void ProblemKeeper::tellRefusal(const QString& reason) {
  if (!std::exchange(isTold_, true)) emit Refused(reason);
}

void ProblemKeeper::noteSaved() {
  saved_ = take_();
  kept_ = nullptr;
  if (writer_.hasKept() || !writer_.isIdle()) writer_.forget();
  if (restored_) removeRestorable(*std::exchange(restored_, std::nullopt));
}

void ProblemKeeper::noteRestored(Restorable restored) {
  if (restored.kind == KeptKind::Unsaved) restored_ = std::move(restored);
  lookLater();
}

void ProblemKeeper::end(SessionEnd end) {
  keepUnlessSaved();
  writer_.end(end);
  takeNoteOfWriting();
}

}  // namespace tavimor
