#pragma once

#include <QObject>
#include <QTimer>
#include <chrono>
#include <functional>
#include <memory>
#include <optional>

#include "formats/restore/kept_writer.h"
#include "formats/restore/restorable.h"

namespace tavimor {

/// Keeps the problem of a main window where it can be restored from, for as long as it has changes that are not saved.
///
/// Whatever the user does may have changed something: a second after it the problem is compared with the one that was
/// saved and the one that was kept, and handed to a thread that writes it, so that a program that is killed loses two
/// seconds at most. Writing a large problem takes 5 % of the time at most: it is kept less often. What cannot be kept
/// is told once.
class ProblemKeeper : public QObject {
  Q_OBJECT

 public:
  using Clock = KeptWriter::Clock;
  using TakeProblem = std::function<std::optional<SessionProblem>()>;

  /// `take` gives the problem as it stands; nothing where there is none yet.
  ProblemKeeper(const std::string& stateFolder, TakeProblem take);

  /// The problem as it stands is that of its files.
  void noteSaved();

  /// The problem as it stands is this one, restored: it is removed as soon as the new session keeps it.
  void noteRestored(Restorable restored);

  /// Something could not be kept: emits Refused the first time.
  void tellRefusal(const QString& reason);

  /// The program ends: what is not saved is kept as it stands, and that is waited for.
  void end(SessionEnd end);

  /// For the pairs that a save replaces.
  KeptSession& session() { return writer_.session(); }

 signals:
  void Refused(const QString& reason);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void lookLater();
  void look();
  void keepUnlessSaved();
  void keepUnlessSaved(std::optional<SessionProblem> now);
  void takeNoteOfWriting();

  TakeProblem take_;
  KeptWriter writer_;
  QTimer look_;
  QTimer watch_;  // over the writer while it writes
  std::optional<SessionProblem> saved_;
  std::shared_ptr<const SessionProblem> kept_;
  std::optional<Restorable> restored_;
  Clock::time_point handedOver_;  // a large problem; a small one is kept as often as it changes
  bool isTold_ = false;
};

}  // namespace tavimor
