// Does in the program's windows what nobody would do: random keys, clicks, closings and changes of the window. What
// crashes the program, or leaves it without an answer, ends this one in the same way; the log then replays it.
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QPointer>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <random>
#include <string>

#include "ui/controls/application.h"
#include "ui/main_window/frmTavimor.h"

namespace {

using namespace tavimor;

struct Key {
  Qt::Key key;
  Qt::KeyboardModifiers modifiers;
};

// Digits are few, so that no field asks for a table that takes long to fit.
constexpr std::array kKeys = {
    Key{Qt::Key_Tab, Qt::NoModifier},        Key{Qt::Key_Tab, Qt::NoModifier},
    Key{Qt::Key_Backtab, Qt::ShiftModifier}, Key{Qt::Key_Return, Qt::NoModifier},
    Key{Qt::Key_Escape, Qt::NoModifier},     Key{Qt::Key_X, Qt::NoModifier},
    Key{Qt::Key_Comma, Qt::NoModifier},      Key{Qt::Key_1, Qt::NoModifier},
    Key{Qt::Key_2, Qt::NoModifier},          Key{Qt::Key_Minus, Qt::NoModifier},
    Key{Qt::Key_Asterisk, Qt::NoModifier},   Key{Qt::Key_A, Qt::ControlModifier},
    Key{Qt::Key_Backspace, Qt::NoModifier},  Key{Qt::Key_Backspace, Qt::ControlModifier},
    Key{Qt::Key_Delete, Qt::NoModifier},     Key{Qt::Key_Down, Qt::NoModifier},
    Key{Qt::Key_Up, Qt::NoModifier},         Key{Qt::Key_Left, Qt::NoModifier},
    Key{Qt::Key_Right, Qt::NoModifier},      Key{Qt::Key_Space, Qt::NoModifier},
    Key{Qt::Key_PageDown, Qt::NoModifier},   Key{Qt::Key_F1, Qt::NoModifier},
    Key{Qt::Key_S, Qt::ControlModifier},     Key{Qt::Key_O, Qt::ControlModifier},
    Key{Qt::Key_F, Qt::AltModifier},         Key{Qt::Key_Y, Qt::AltModifier},
};

// An action is four numbers, each taken modulo what there is to choose from: a line of the log.
using Action = std::array<unsigned, 4>;
enum Kind { kKey = 55, kClick = 95, kActivate = 99 };  // of a hundred: below the first a key ..., the rest closings

class Source {
 public:
  Source(unsigned seed, const std::string& logToReplay) : random_(seed), replayed_(logToReplay) {
    isReplay_ = !logToReplay.empty();
  }

  bool next(Action& action) {
    if (!isReplay_)
      return std::generate(action.begin(), action.end(), [&] { return unsigned(random_() % 10000); }), true;
    for (unsigned& number : action)
      if (!(replayed_ >> number)) return false;
    return true;
  }

 private:
  std::mt19937 random_;
  std::ifstream replayed_;
  bool isReplay_;
};

QWidgetList visibleWindows() {
  if (QWidget* popup = QApplication::activePopupWidget()) return {popup};
  if (QWidget* modal = QApplication::activeModalWidget()) return {modal};
  QWidgetList windows;
  for (QWidget* widget : QApplication::topLevelWidgets())
    if (widget->isVisible() && widget->windowHandle() != nullptr) windows << widget;
  const auto name = [](const QWidget* widget) { return widget->objectName() + widget->metaObject()->className(); };
  std::stable_sort(windows.begin(), windows.end(), [&](auto* a, auto* b) { return name(a) < name(b); });
  return windows;
}

QString textOf(const Key& key) {
  if ((key.modifiers & (Qt::ControlModifier | Qt::AltModifier)) != 0) return {};
  if (key.key < Qt::Key_Escape) return QString(QChar(static_cast<char16_t>(key.key))).toLower();
  if (key.key == Qt::Key_Return) return QStringLiteral("\r");
  return key.key == Qt::Key_Backspace ? QStringLiteral("\b") : QString();
}

// No events are dispatched between press and release, and the press may have been the window's end.
void press(const QPointer<QWindow>& window, const Key& key) {
  for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease})
    if (window != nullptr) qt_handleKeyEvent(window, type, key.key, key.modifiers, textOf(key));
}

void clickAt(const QPointer<QWindow>& window, const QPoint& place) {
  static int time = 0;
  time += QApplication::doubleClickInterval() + 1;
  for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease})
    if (window != nullptr)
      qt_handleMouseEvent(window, place, window->mapToGlobal(place),
                          type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, Qt::LeftButton, type,
                          Qt::NoModifier, time);
}

void click(QWidget& window, unsigned which, unsigned place) {
  QWidgetList controls;
  for (QWidget* widget : window.findChildren<QWidget*>())
    if (widget->isVisible() && !widget->isWindow()) controls << widget;
  QWidget* control = controls.isEmpty() ? &window : controls[static_cast<int>(which) % controls.size()];
  const QPoint within(static_cast<int>(place % 100) * control->width() / 100,
                      static_cast<int>(place / 100) * control->height() / 100);
  clickAt(window.windowHandle(), control->mapTo(&window, within));
}

// Only what stays in the temporary folder: the dialog could remove files elsewhere.
void answer(QFileDialog& dialog, unsigned which) {
  if (which % 2 == 0) return dialog.reject();
  if (auto* line = dialog.findChild<QLineEdit*>()) line->setText(which % 4 == 1 ? "problem" : "FUNCTION");
  press(dialog.windowHandle(), {Qt::Key_Return, Qt::NoModifier});
}

void perform(const Action& action) {
  const QWidgetList windows = visibleWindows();
  if (windows.isEmpty()) return;
  QWidget& window = *windows[static_cast<int>(action[1]) % windows.size()];
  if (auto* dialog = qobject_cast<QFileDialog*>(&window)) return answer(*dialog, action[2]);
  const unsigned kind = action[0] % 100;
  if (kind < kKey) {
    press(window.windowHandle(), kKeys[action[2] % kKeys.size()]);
  } else if (kind < kClick) {
    click(window, action[2], action[3]);
  } else if (kind < kActivate) {
    window.activateWindow();
  } else {
    window.close();
  }
}

class Monkey {
 public:
  Monkey(long actions, Source& source, const std::string& log) : left_(actions), source_(source), log_(log) {
    timer_.setSingleShot(true);
    QObject::connect(&timer_, &QTimer::timeout, [this] { act(); });
  }

  bool isDone() const { return left_ <= 0; }
  void begin() { timer_.start(0); }

 private:
  // Each action arranges for the next one first, which then comes within a dialog that it opens.
  void act() {
    Action action{};
    if (left_ <= 0 || !source_.next(action)) {
      left_ = 0;
      QCoreApplication::exit(0);
      return;
    }
    --left_;
    for (const unsigned number : action) log_ << number << ' ';
    log_ << std::endl;  // on its way before the action can crash
    begin();
    perform(action);
  }

  QTimer timer_;
  long left_;
  Source& source_;
  std::ofstream log_;
};

// One run of the program, from its main window to its end.
void run(Monkey& monkey) {
  Dimension model;
  auto* window = new frmTavimor(model);
  window->show();
  monkey.begin();
  QApplication::exec();
  while (!Form::openForms().isEmpty()) delete Form::openForms().constFirst();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 4) {
    std::fprintf(stderr, "Usage: monkey ACTIONS SEED LOG [LOG_TO_REPLAY]\n");
    return EXIT_FAILURE;
  }
  const QTemporaryDir folder;
  const std::string log = QFileInfo(argv[3]).absoluteFilePath().toStdString();
  const std::string replayed = argc > 4 ? QFileInfo(argv[4]).absoluteFilePath().toStdString() : "";
  QDir::setCurrent(folder.path());
  qputenv("HOME", folder.path().toUtf8());
  qunsetenv("XDG_STATE_HOME");
  QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  Application application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setEffectEnabled(Qt::UI_AnimateMenu, false);
  Source source(static_cast<unsigned>(std::atol(argv[2])), replayed);
  Monkey monkey(std::atol(argv[1]), source, log);
  int runs = 0;
  for (; !monkey.isDone(); ++runs) run(monkey);
  std::printf("%s actions, seed %s, %d runs: no crash\n", argv[1], argv[2], runs);
  return EXIT_SUCCESS;
}
