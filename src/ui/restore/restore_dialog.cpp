#include "ui/restore/restore_dialog.h"

#include <QDateTime>
#include <QFileInfo>
#include <QHeaderView>
#include <QLocale>

#include "runtime/failure.h"
#include "runtime/text.h"
#include "ui/controls/wait_pointer.h"
#include "ui/restore/restore_preview.h"

namespace tavimor {

namespace {

enum Column { kProblem, kVariables, kPoints, kWhen, kWhy };

QString shown(const std::string& text) { return QString::fromStdString(withEscapes(text)); }

QString fileNameOf(const std::string& path) {
  return path.empty() ? QStringLiteral("not saved yet")
                      : shown(QFileInfo(QString::fromStdString(path)).fileName().toStdString());
}

QString namesText(const std::vector<std::string>& names) {
  QStringList all;
  for (const std::string& name : names) all << shown(name);
  return all.join(QStringLiteral(", "));
}

QString pointsText(std::uint64_t points) { return points == 0 ? QString() : QString::number(points); }

QString whenText(std::int64_t seconds) {
  return QLocale().toString(QDateTime::fromSecsSinceEpoch(seconds), QLocale::ShortFormat);
}

QString whyText(const Restorable& restorable) {
  if (restorable.kind == KeptKind::Replaced) return QStringLiteral("replaced by a save");
  switch (restorable.end) {
    case SessionEnd::Closed: return QStringLiteral("closed without saving");
    case SessionEnd::ToldToEnd: return QStringLiteral("told to end");
    case SessionEnd::RunTimeError: return QStringLiteral("ended by a run-time error");
    case SessionEnd::Crashed: return QStringLiteral("crashed");
    case SessionEnd::Killed: return QStringLiteral("killed");
    case SessionEnd::SystemRestarted: return QStringLiteral("before a restart");
    case SessionEnd::Unknown: break;
  }
  return QStringLiteral("cut short");
}

// What is known, where a word in the list says too little or too much.
QString whyInFull(const Restorable& restorable) {
  if (restorable.kind == KeptKind::Replaced) return {};
  switch (restorable.end) {
    case SessionEnd::ToldToEnd: return QStringLiteral("Told to end from outside, by a log-off for instance");
    case SessionEnd::Crashed: return QStringLiteral("Ended by a fault of the program");
    case SessionEnd::Killed:
      return QStringLiteral(
          "Gone without a word: killed, for want of memory perhaps, or by a fault that it could not note");
    case SessionEnd::SystemRestarted:
      return QStringLiteral("Gone without a word, and the computer was started anew since: it may have lost its power");
    case SessionEnd::Unknown:
      return QStringLiteral("Gone without a word: killed, crashed or without power, which is not known");
    case SessionEnd::Closed:
    case SessionEnd::RunTimeError: break;
  }
  return {};
}

}  // namespace

RestoreDialog::RestoreDialog(QWidget* parent, const std::string& stateFolder, OpensIn opensIn)
    : QDialog(parent), RestoreDialogControls(static_cast<QWidget&>(*this)), stateFolder_(stateFolder) {
  setObjectName(QStringLiteral("frmRestore"));
  setWindowTitle(QStringLiteral("Restore"));
  if (opensIn == OpensIn::NewWindow) {
    cmdOpen->setText(QStringLiteral("&Open a copy in a new window"));
    cmdOpen->setToolTip(QStringLiteral("This window has its problem already"));
  }
  connect(lstRestore, &QTreeWidget::currentItemChanged, this, &RestoreDialog::showChosen);
  connect(lstRestore, &QTreeWidget::itemActivated, this, [this] {
    if (cmdOpen->isEnabled()) accept();
  });
  connect(cmdOpen, &QPushButton::clicked, this, &QDialog::accept);
  connect(cmdRemove, &QPushButton::clicked, this, &RestoreDialog::cmdRemove_Click);
  connect(cmdClose, &QPushButton::clicked, this, &QDialog::reject);
  fill();
}

void RestoreDialog::fill() {
  all_ = restorableProblems(stateFolder_);
  files_.clear();
  lstRestore->clear();
  for (std::size_t n = 0; n < all_.size(); ++n) addItem(n);
  for (int column = 0; column < lstRestore->columnCount(); ++column) lstRestore->resizeColumnToContents(column);
  if (lstRestore->topLevelItemCount() > 0) lstRestore->setCurrentItem(lstRestore->topLevelItem(0));
  showChosen();
  lstRestore->setFocus();
}

void RestoreDialog::addItem(std::size_t n) {
  const Restorable& one = all_[n];
  auto* item = new QTreeWidgetItem({fileNameOf(one.description.file), namesText(one.description.names),
                                    pointsText(one.description.points), whenText(one.description.when), whyText(one)});
  item->setToolTip(kProblem, shown(one.description.file));
  item->setToolTip(kWhy, whyInFull(one));
  item->setTextAlignment(kPoints, Qt::AlignRight | Qt::AlignVCenter);
  item->setData(kProblem, Qt::UserRole, static_cast<qulonglong>(n));
  if (one.kind == KeptKind::Unsaved) return lstRestore->addTopLevelItem(item);
  fileItem(one.description.file)->addChild(item);
}

// The line that the replaced pairs of a file stand under; it has no number of its own.
QTreeWidgetItem* RestoreDialog::fileItem(const std::string& file) {
  QTreeWidgetItem*& item = files_[file];
  if (item != nullptr) return item;
  item = new QTreeWidgetItem({fileNameOf(file)});
  item->setToolTip(kProblem, shown(file));
  lstRestore->addTopLevelItem(item);
  item->setExpanded(true);
  return item;
}

const Restorable* RestoreDialog::chosen() const {
  const QTreeWidgetItem* item = lstRestore->currentItem();
  const QVariant number = item == nullptr ? QVariant() : item->data(kProblem, Qt::UserRole);
  return number.isValid() ? &all_[number.toULongLong()] : nullptr;
}

void RestoreDialog::showChosen() {
  const Restorable* one = chosen();
  cmdOpen->setEnabled(one != nullptr);
  cmdRemove->setEnabled(one != nullptr);
  if (one == nullptr)
    return txtPreview->setPlainText(all_.empty() ? QStringLiteral("There is nothing to restore.") : QString());
  try {
    const WaitPointer hourglass;
    txtPreview->setPlainText(previewOf(readKept(one->folder)));
  } catch (const Failure& failure) {
    cmdOpen->setEnabled(false);
    txtPreview->setPlainText(QStringLiteral("It cannot be read:\n%1\n%2")
                                 .arg(shown(failure.path()), QString::fromStdString(failure.report())));
  }
}

void RestoreDialog::cmdRemove_Click() {
  removeRestorable(*chosen());
  fill();
}

std::optional<Restorable> RestoreDialog::ask() {
  if (exec() != Accepted || chosen() == nullptr) return std::nullopt;
  return *chosen();
}

}  // namespace tavimor
