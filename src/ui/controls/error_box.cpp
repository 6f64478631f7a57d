#include "ui/controls/error_box.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>

#include "runtime/text.h"
#include "ui/controls/common_dialog.h"
#include "ui/controls/form.h"
#include "ui/controls/message_box.h"

namespace tavimor {

namespace {

using SaveProblem = std::function<void(const std::string&)>;

QString failureText(const Failure& failure) {
  QString text =
      QStringLiteral("%1:\n\n%2").arg(QString::fromStdString(failure.heading()), QString::fromUtf8(failure.what()));
  for (const std::string& line : {failure.path(), failure.detail()})
    if (!line.empty()) text += QStringLiteral("\n") + QString::fromStdString(withEscapes(line));
  return text;
}

enum class Choice { SaveCopy, End, Dismiss };

// A message box that tells "End" from Escape and the title bar.
class FailureBox : public QMessageBox {
 public:
  FailureBox(const Failure& failure, const SaveProblem& save)
      : QMessageBox(QMessageBox::Critical, kTitle, failureText(failure)) {
    setTextFormat(Qt::PlainText);
    if (save) copy_ = addButton(QStringLiteral("Save a copy..."), QMessageBox::ActionRole);
    QPushButton* end = addButton(QStringLiteral("End"), QMessageBox::RejectRole);
    setDefaultButton(save ? copy_ : end);
    setEscapeButton(end);
  }

  Choice ask() {
    exec();
    if (copy_ == nullptr) return Choice::End;
    if (clickedButton() == copy_) return Choice::SaveCopy;
    return isDismissed_ ? Choice::Dismiss : Choice::End;
  }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (event->matches(QKeySequence::Cancel)) isDismissed_ = true;
    QMessageBox::keyPressEvent(event);
  }

  void closeEvent(QCloseEvent* event) override {
    isDismissed_ = true;
    QMessageBox::closeEvent(event);
  }

 private:
  QPushButton* copy_ = nullptr;
  bool isDismissed_ = false;
};

// The program may have been asked to end from outside; that also calls the questions off.
bool isToEnd() {
  return Form::isAnyEnding() ||
         ask(QStringLiteral(
             "What you have typed since the last save is in no file of yours. Tools, Restore... has it at "
             "the next start, as far as it could be kept.\n\nEnd the program?")) == Answer::Yes;
}

bool hasSavedCopy(const SaveProblem& save) {
  CommonDialog dialog;
  if (dialog.ShowSave() == DialogEnd::Cancelled) return false;
  try {
    save(dialog.FileName);
    return true;
  } catch (const Failure& failure) {
    showWarning(failureText(failure));
    return false;
  }
}

}  // namespace

void reportFailure(const Failure& failure, const SaveProblem& save) {
  for (;;) switch (FailureBox(failure, save).ask()) {
      case Choice::SaveCopy:
        if (hasSavedCopy(save)) return;
        break;
      case Choice::Dismiss:
        if (isToEnd()) return;
        break;
      case Choice::End: return;
    }
}

}  // namespace tavimor
