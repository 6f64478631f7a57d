#include "ui/export/export_dialog.h"

#include <QClipboard>
#include <QFileDialog>
#include <QGuiApplication>

#include "analysis/figures.h"
#include "formats/replaced_file.h"
#include "runtime/failure.h"
#include "runtime/val.h"
#include "ui/controls/message_box.h"
#include "ui/controls/wait_pointer.h"

namespace tavimor {

namespace {

constexpr qsizetype kMostShown = 200000;  // characters: more are copied and saved, but too many to look at

// Nothing where the system has no memory for it: the formula can be written all the same.
std::optional<SecondOpinion> opinionOn(const Problem& problem, const AllSpecFields& fields) {
  try {
    const WaitPointer hourglass;
    return secondOpinionOn(problem, Reading::AsTyped, centresFromFields(fields));
  } catch (const Failure&) {
    return std::nullopt;
  }
}

}  // namespace

ExportDialog::ExportDialog(QWidget* parent, const Problem& problem, const Fit& fit, const AllSpecFields& fields,
                           const std::string& name)
    : QDialog(parent),
      ExportDialogControls(static_cast<QWidget&>(*this)),
      problem_(problem),
      fit_(fit),
      opinion_(opinionOn(problem, fields)) {
  if (hasPrecise()) precise_ = listedForm(opinion_->precise);
  setObjectName(QStringLiteral("frmExport"));
  setWindowTitle(QStringLiteral("Export formula"));
  setWindowModality(Qt::WindowModal);  // the help can be read meanwhile
  txtName->setText(QString::fromStdString(name));
  connect(cboFormat, &QComboBox::currentIndexChanged, this, &ExportDialog::write);
  connect(txtName, &TextBox::Change, this, &ExportDialog::write);
  connect(txtWithin, &TextBox::Change, this, &ExportDialog::write);
  connect(txtChecks, &TextBox::Change, this, &ExportDialog::write);
  for (QCheckBox* box : {chkNaN, chkPrecise}) connect(box, &QCheckBox::clicked, this, &ExportDialog::write);
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
  options.checks = txtChecks->text().toInt();
  options.outside = chkNaN->isChecked() ? Outside::NotANumber : Outside::Extrapolated;
  if (opinion_) options.figures = fitFigures(*opinion_, problem_, chosenFit());
  return options;
}

// Why the choices give nothing; empty where they give a formula.
QString ExportDialog::refusal() const {
  bool isWhole = false;
  const Long checks = txtChecks->text().toInt(&isWhole);
  if (!isWhole || checks < 0 || checks > kMostChecks)
    return QStringLiteral("The number of check points must be a whole number from 0 to %1.").arg(kMostChecks);
  if (txtWithin->text().trimmed().isEmpty() || options().within) return {};
  return QStringLiteral("The distance must be a number above 0.");
}

// What the choices give: never a formula that was not asked for.
void ExportDialog::write() {
  const bool isFormula = format().kind != ExportKind::Problem;
  for (QWidget* choice : QWidgetList{txtName, txtWithin, txtChecks, chkNaN}) choice->setEnabled(isFormula);
  chkPrecise->setEnabled(isFormula && hasPrecise());
  const QString refused = isFormula ? refusal() : QString();
  cmdCopy->setEnabled(refused.isEmpty() && format().kind != ExportKind::Bytes);
  cmdSave->setEnabled(refused.isEmpty());
  written_.clear();
  if (!refused.isEmpty()) return show(refused);
  if (format().kind == ExportKind::Bytes) return show(QStringLiteral("A workbook is saved to a file."));
  const WaitPointer hourglass;
  written_ = writtenNow();
  show(QString::fromStdString(written_));
}

// The whole problem goes out as it is.
std::string ExportDialog::writtenNow() const {
  const bool isFormula = format().kind != ExportKind::Problem;
  return format().write(problem_, isFormula ? chosenFit() : fit_, options());
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
    replaceFile(path, written_.empty() ? writtenNow() : written_);
  } catch (const Failure& failure) {
    const std::string place = failure.path().empty() ? path : failure.path();
    showWarning(QStringLiteral("The formula cannot be saved:\n\n%1\n\n%2")
                    .arg(QString::fromStdString(place), QString::fromStdString(failure.report())));
  }
}

}  // namespace tavimor
