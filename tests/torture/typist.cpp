// Types into the program's windows, and is killed at a random moment: what was typed more than two seconds before must
// be there to restore, whole.
//
// The one who types runs as a process of its own and logs what the user has given so far, after each key; the one who
// kills compares what can be restored with the log.
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QFileInfo>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include "formats/restore/restorable.h"
#include "runtime/failure.h"
#include "runtime/number_text.h"
#include "ui/controls/application.h"
#include "ui/controls/state_folder.h"
#include "ui/main_window/frmTavimor.h"

namespace {

using namespace tavimor;

constexpr long kMostLost = 2000;  // milliseconds
constexpr int kBetweenKeys = 25;

long millisecondsNow() {
  using namespace std::chrono;
  return static_cast<long>(duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count());
}

Qt::Key keyOf(QChar character) {
  if (character == '\t') return Qt::Key_Tab;
  return character == '\r' ? Qt::Key_Return : static_cast<Qt::Key>(character.toUpper().unicode());
}

// What a user has given: the texts of the fields and the values that are not 0. The number of values is left out, for
// one that is half typed is a number as well.
std::string givenText(const std::string& lower, const std::string& upper, const std::string& degree,
                      const Table4& function) {
  std::string text = lower + ' ' + upper + ' ' + degree;
  for (std::size_t n = 0; n < function.size(); ++n)
    if (function.data()[n] != 0.0) text += ' ' + numberText(function.data()[n]);
  return text;
}

class Typist {
 public:
  Typist(unsigned seed, const std::string& log)
      : random_(seed), log_(log, std::ios::app), window_(new frmTavimor(model_)) {
    window_->show();
    timer_.setInterval(kBetweenKeys);
    timer_.setSingleShot(true);
    QObject::connect(&timer_, &QTimer::timeout, [this] { step(); });
    timer_.start();
  }

 private:
  // The next key, of the next text where the last one has been typed.
  void step() {
    timer_.start();  // first, for a key can open a dialog that waits
    if (keys_.isEmpty()) keys_ = nextText();
    const QChar key = keys_.at(0);
    keys_.remove(0, 1);
    press(key);
    if (window_->findChild<QAction*>("mnuSave")->isEnabled()) note();
  }

  QString nextText() {
    switch (text_++) {
      case 0: return QStringLiteral("1\tx\t");
      case 1: return QStringLiteral("-%1\t").arg(number());
      case 2: return QStringLiteral("%1\t").arg(number());
      case 3: return QStringLiteral("200\t");
      case 4: return QStringLiteral("%1\t*\t\t\t\t\t\t ").arg(2 + number() % 50);  // ... to Edit function
      case 5: return QStringLiteral("0\r");
      default: return QStringLiteral("%1\r").arg(number());
    }
  }

  int number() { return 100 + static_cast<int>(random_() % 900); }

  void press(QChar character) {
    QWidget* active = QApplication::activeModalWidget();
    if (active == nullptr) active = QApplication::activeWindow();
    if (active == nullptr || active->windowHandle() == nullptr) return;
    const Qt::Key key = keyOf(character);
    const QString text = character == '\t' ? QString() : QString(character);
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease})
      qt_handleKeyEvent(active->windowHandle(), type, key, Qt::NoModifier, text);
    QCoreApplication::sendPostedEvents();
  }

  void note() {
    const auto text = [this](const char* name) {
      return window_->findChild<QLineEdit*>(QLatin1String(name))->text().toStdString();
    };
    log_ << millisecondsNow() << ' ' << givenText(text("txtLL(0)"), text("txtUL(0)"), text("txtTerms(0)"), model_.F)
         << std::endl;
  }

  std::mt19937 random_;
  std::ofstream log_;
  Dimension model_;
  frmTavimor* window_;
  QTimer timer_;
  QString keys_;
  int text_ = 0;
};

int type(int argc, char** argv) {
  QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  Application application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  const Typist typist(static_cast<unsigned>(std::atol(argv[2])), argv[3]);
  return QApplication::exec();
}

struct Noted {
  long when;
  std::string given;
};

std::vector<Noted> notesIn(const std::string& log) {
  std::vector<Noted> notes;
  std::ifstream file(log);
  Noted note;
  while (file >> note.when && file.get() == ' ' && std::getline(file, note.given)) notes.push_back(note);
  return notes;
}

// How long the one who types was held up, by the machine and not by us.
long longestPause(const std::vector<Noted>& notes, long killed) {
  long longest = notes.empty() ? 0 : killed - notes.back().when;
  for (std::size_t n = 1; n < notes.size(); ++n)
    if (notes[n].when > killed - 2 * kMostLost) longest = std::max(longest, notes[n].when - notes[n - 1].when);
  return longest;
}

std::string givenIn(const SessionProblem& kept) {
  return givenText(kept.fields[0].txtLL, kept.fields[0].txtUL, kept.fields[0].txtTerms, kept.problem.F);
}

// Whether nothing older than two seconds is lost; says what is.
bool isRestored(const std::vector<Noted>& notes, const std::vector<Restorable>& all, long killed) {
  const long mayBeLost = killed - kMostLost - longestPause(notes, killed);
  const SessionProblem kept = all.empty() ? SessionProblem() : readKept(all.front().folder);
  if (all.empty() || kept.typedNames)
    return notes.empty() || notes.front().when >= mayBeLost || !std::puts("no problem can be restored");
  const std::string given = givenIn(kept);
  for (std::size_t n = notes.size(); n-- > 0;) {
    if (notes[n].given == given) return true;
    if (notes[n].when < mayBeLost) break;
  }
  std::printf("restored is not what was typed: %s\n", given.c_str());
  if (!notes.empty()) std::printf("typed at last was: %s\n", notes.back().given.c_str());
  return false;
}

pid_t startTypist(const char* program, unsigned seed, const std::string& log) {
  const pid_t child = fork();
  if (child == 0) {
    execl(program, program, "type", std::to_string(seed).c_str(), log.c_str(), nullptr);
    _exit(EXIT_FAILURE);
  }
  return child;
}

bool killOnce(const char* program, unsigned seed, const QDir& place) {
  const std::string log = place.filePath("log").toStdString();
  QFile::remove(place.filePath("log"));
  std::mt19937 random(seed);
  const pid_t child = startTypist(program, seed, log);
  std::this_thread::sleep_for(std::chrono::milliseconds(500 + random() % 7500));
  const long killed = millisecondsNow();
  kill(child, SIGKILL);
  int status = 0;
  waitpid(child, &status, 0);
  if (!WIFSIGNALED(status)) return !std::puts("the one who types has ended by itself");
  const std::vector<Restorable> all = restorableProblems(stateFolder());
  const bool isGood = all.size() <= 1 && isRestored(notesIn(log), all, killed);
  for (const Restorable& one : all) removeRestorable(one);
  return isGood;
}

int killAgainAndAgain(const char* program, int rounds, unsigned seed) {
  const QTemporaryDir place;
  qputenv("XDG_STATE_HOME", place.filePath("state").toUtf8());
  QDir::setCurrent(place.path());
  for (int round = 0; round < rounds; ++round)
    if (!killOnce(program, seed + round, QDir(place.path()))) {
      std::printf("FAILED: round %d of seed %u\n", round, seed);
      return EXIT_FAILURE;
    }
  std::printf("%d kills: nothing typed more than two seconds before is lost\n", rounds);
  return EXIT_SUCCESS;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 4) {
    std::fprintf(stderr, "Usage: typist kill ROUNDS SEED, or, as that calls it, typist type SEED LOG\n");
    return EXIT_FAILURE;
  }
  if (std::string(argv[1]) == "type") return type(argc, argv);
  const std::string program = QFileInfo(argv[0]).absoluteFilePath().toStdString();
  try {
    return killAgainAndAgain(program.c_str(), std::atoi(argv[2]), static_cast<unsigned>(std::atol(argv[3])));
  } catch (const Failure& failure) {
    std::printf("%s: %s\n", failure.path().c_str(), failure.report().c_str());
    return EXIT_FAILURE;
  }
}
