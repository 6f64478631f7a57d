#include <QClipboard>
#include <QDropEvent>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMimeData>

#include "formats/file_pair.h"
#include "formats/tables/table_text.h"
#include "runtime/failure.h"
#include "ui/controls/message_box.h"
#include "ui/main_window/frmTavimor.h"
#include "ui/tables/table_dialog.h"

namespace tavimor {

namespace {

// The problem that a file belongs to, by either half of its pair; empty for a file that has no other half.
std::string problemOf(const QString& file) {
  const std::string path = file.toStdString();
  if (QFileInfo::exists(QString::fromStdString(pairPaths(path).values))) return path;
  const QString ending = QString::fromStdString(pairPaths({}).values);
  const QString specification = file.chopped(file.endsWith(ending) ? ending.size() : 0);
  return specification != file && QFileInfo::exists(specification) ? specification.toStdString() : std::string();
}

QString droppedFile(const QMimeData& data) {
  const QList<QUrl> places = data.urls();
  return places.size() == 1 ? places.first().toLocalFile() : QString();
}

bool isTableOrProblem(const QMimeData& data) {
  return data.hasUrls() ? QFileInfo(droppedFile(data)).isFile() : data.hasText();
}

}  // namespace

// A dialog of its own: the name of a table is no name to save a problem under.
void frmTavimor::mnuImport_Click() {
  CommonDialog dialog;
  if (dialog.ShowOpen() == DialogEnd::Confirmed) importFile(dialog.FileName);
}

void frmTavimor::mnuPaste_Click() { importText(QGuiApplication::clipboard()->text().toStdString()); }

void frmTavimor::importFile(const std::string& path) {
  try {
    const TableText table = TableText::ofFile(path);
    importText(table.view());
  } catch (const Failure& failure) {
    showWarning(QStringLiteral("The table cannot be opened:\n\n%1\n\n%2")
                    .arg(QString::fromStdString(path), QString::fromStdString(failure.report())));
  }
}

void frmTavimor::importText(std::string_view text) {
  std::optional<TableProblem> created = problemFromTable(this, text);
  if (!created || isEnding()) return;
  OpenedProblem opened{std::move(created->problem), {}, {}};
  for (Long k = 0; k < kMaxVariables; ++k) opened.fields[k].txtExpansion = created->centres[k];
  showOpened(std::move(opened), "table taken");
}

void frmTavimor::dragEnterEvent(QDragEnterEvent* event) {
  if (mnuOpen->isEnabled() && isTableOrProblem(*event->mimeData())) event->acceptProposedAction();
}

// The program that something was dragged from waits until this returns: a dialog must not open before.
void frmTavimor::dropEvent(QDropEvent* event) {
  event->acceptProposedAction();
  const QString file = droppedFile(*event->mimeData());
  const std::string text = event->mimeData()->text().toStdString();
  QMetaObject::invokeMethod(
      this, [this, file, text] { takeDropped(file, text); }, Qt::QueuedConnection);
}

void frmTavimor::takeDropped(const QString& file, const std::string& text) {
  if (!mnuOpen->isEnabled()) return;
  if (file.isEmpty()) return importText(text);
  const std::string problem = problemOf(file);
  if (problem.empty())
    importFile(file.toStdString());
  else
    openFile(problem);
}

}  // namespace tavimor
