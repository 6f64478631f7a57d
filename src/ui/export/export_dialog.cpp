#include "ui/export/export_dialog.h"

#include <QClipboard>
#include <QFileDialog>
#include <QGuiApplication>

#include "formats/replaced_file.h"
#include "runtime/failure.h"
#include "runtime/val.h"
#include "ui/controls/message_box.h"
#include "ui/controls/wait_pointer.h"

namespace tavimor {

namespace {

constexpr qsizetype kMostShown = 200000;  // characters: more are copied and saved, but too many to look at

}  // namespace

ExportDialog::ExportDialog(QWidget* parent, const Problem& problem, const Fit& fit, const std::string& name)
    : QDialog(parent), ExportDialogControls(static_cast<QWidget&>(*this)), problem_(problem), fit_(fit) {
  setObjectName(QStringLiteral("frmExport"));
  setWindowTitle(QStringLiteral("Export formula"));
  txtName->setText(QString::fromStdString(name));
  connect(cboFormat, &QComboBox::currentIndexChanged, this, &ExportDialog::write);
  connect(txtName, &TextBox::Change, this, &ExportDialog::write);
  connect(txtWithin, &TextBox::Change, this, &ExportDialog::write);
  connect(chkNaN, &QCheckBox::clicked, this, &ExportDialog::write);
  connect(cmdCopy, &QPushButton::clicked, this,
          [this] { QGuiApplication::clipboard()->setText(QString::fromStdString(written_)); });
  connect(cmdSave, &QPushButton::clicked, this, &ExportDialog::cmdSave_Click);
  connect(cmdClose, &QPushButton::clicked, this, &QDialog::reject);
  write();
}

const ExportFormat& ExportDialog::format() const { return exportFormats()[cboFormat->currentIndex()]; }

FormulaOptions ExportDialog::options() const {
  FormulaOptions options{.name = txtName->text().toStdString(), .within = {}};
  const std::string within = txtWithin->text().toStdString();
  if (IsNumeric(within) && Val(within) > 0.0) options.within = Val(within);
  options.outside = chkNaN->isChecked() ? Outside::NotANumber : Outside::Extrapolated;
  return options;
}

// What the choices give. A distance that is no number above 0 gives nothing: not a formula that was not asked for.
void ExportDialog::write() {
  const bool isFormula = format().kind != ExportKind::Problem;
  for (QWidget* choice : QWidgetList{txtName, txtWithin, chkNaN}) choice->setEnabled(isFormula);
  cmdCopy->setEnabled(format().kind != ExportKind::Bytes);
  cmdSave->setEnabled(true);
  written_.clear();
  if (isFormula && !txtWithin->text().trimmed().isEmpty() && !options().within) {
    for (QPushButton* button : {cmdCopy, cmdSave}) button->setEnabled(false);
    return show(QStringLiteral("The distance must be a number above 0."));
  }
  if (format().kind == ExportKind::Bytes) return show(QStringLiteral("A workbook is saved to a file."));
  const WaitPointer hourglass;
  written_ = format().write(problem_, fit_, options());
  show(QString::fromStdString(written_));
}

void ExportDialog::show(const QString& preview) {
  txtPreview->setPlainText(preview.size() > kMostShown ? preview.left(kMostShown) + QStringLiteral("\n...") : preview);
}

void ExportDialog::cmdSave_Click() {
  QFileDialog dialog(this, QStringLiteral("Save formula"));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  const std::string name = txtName->text().isEmpty() ? "fit" : txtName->text().toStdString();
  dialog.selectFile(QString::fromStdString(name + std::string(format().ending)));
  if (dialog.exec() == QDialog::Accepted && !dialog.selectedFiles().isEmpty())
    save(dialog.selectedFiles().constFirst().toStdString());
}

void ExportDialog::save(const std::string& path) {
  try {
    const WaitPointer hourglass;
    replaceFile(path, written_.empty() ? format().write(problem_, fit_, options()) : written_);
  } catch (const Failure& failure) {
    const std::string place = failure.path().empty() ? path : failure.path();
    showWarning(QStringLiteral("The formula cannot be saved:\n\n%1\n\n%2")
                    .arg(QString::fromStdString(place), QString::fromStdString(failure.report())));
  }
}

}  // namespace tavimor
