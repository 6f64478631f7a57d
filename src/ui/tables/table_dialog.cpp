#include "ui/tables/table_dialog.h"

#include <QSignalBlocker>
#include <QStyle>
#include <array>

#include "formats/tables/problem_from_grid.h"
#include "runtime/long.h"
#include "runtime/run_time_error.h"
#include "runtime/val.h"
#include "ui/controls/wait_pointer.h"

namespace tavimor {

namespace {

constexpr std::array<char, 4> kSeparators = {',', ';', '\t', kBlanks};  // in the order of the choices

int choiceOf(char separator) {
  for (std::size_t n = 0; n < kSeparators.size(); ++n)
    if (kSeparators[n] == separator) return static_cast<int>(n);
  return -1;
}

// A degree that is no number is one that is refused.
Long degreeFrom(const QString& text) {
  constexpr Long refused = -1;
  const std::string typed = text.toStdString();
  try {
    return IsNumeric(typed) ? ValLong(typed) : refused;
  } catch (const RunTimeError&) {
    return refused;
  }
}

}  // namespace

TableDialog::TableDialog(QWidget* parent, std::string_view text)
    : QDialog(parent), TableDialogControls(static_cast<QWidget&>(*this)), text_(text) {
  setObjectName(QStringLiteral("frmTable"));
  setWindowTitle(QStringLiteral("Import table"));
  setWindowModality(Qt::WindowModal);  // the help can be read meanwhile
  connectControls();
  look();
}

void TableDialog::connectControls() {
  connect(cboSeparator, &QComboBox::activated, this, &TableDialog::cboSeparator_Click);
  connect(cboMark, &QComboBox::activated, this, [this](int choice) {
    told_.mark = static_cast<DecimalMark>(choice);
    look();
  });
  connect(cboForm, &QComboBox::activated, this, [this](int choice) {
    told_.form = static_cast<TableForm>(choice);
    told_.columns.clear();
    look();
  });
  connect(chkHeading, &QCheckBox::clicked, this, [this](bool isHeading) {
    told_.heading = isHeading ? Heading::Yes : Heading::No;
    look();
  });
  connect(grdPreview, &TablePreview::RoleChosen, this, [this] {
    told_.columns = grdPreview->columnsByRole();
    look();
  });
  connect(chkMeans, &QCheckBox::clicked, this, [this](bool means) {
    told_.duplicates = means ? Duplicates::Mean : Duplicates::Refuse;
    look();
  });
  connect(chkShrink, &QCheckBox::clicked, this, [this](bool shrink) {
    told_.gaps = shrink ? Gaps::Shrink : Gaps::Refuse;
    look();
  });
  for (int k = 0; k < kMaxVariables; ++k)
    for (TextBox* box : {txtDegree[k], txtCentre[k]}) connect(box, &TextBox::Change, this, &TableDialog::showFindings);
  connect(lstFindings, &QListWidget::itemDoubleClicked, this,
          [this](const QListWidgetItem* item) { lstFindings_DblClick(lstFindings->row(item)); });
  connect(cmdCreate, &QPushButton::clicked, this, &QDialog::accept);
  connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

// Other columns come of another separator: what was chosen for the old ones is void.
void TableDialog::cboSeparator_Click() {
  told_.separator = kSeparators.at(cboSeparator->currentIndex());
  told_.columns.clear();
  look();
}

void TableDialog::lstFindings_DblClick(int row) {
  const long line = lstFindings->item(row)->data(Qt::UserRole).value<long>();
  if (line > 0) grdPreview->showLine(text_, outcome_.format, line);
}

void TableDialog::look() {
  const WaitPointer wait;
  outcome_ = importTable(text_, told_);
  showFormat();
  grdPreview->showTable(text_, outcome_.format);
  if (told_.columns.empty()) grdPreview->showRoles(outcome_);  // else they stand as the user has chosen them
  showVariables();
  showFindings();
}

void TableDialog::showFormat() {
  const QSignalBlocker quietHeading(chkHeading);
  cboSeparator->setCurrentIndex(choiceOf(outcome_.format.separator));
  cboMark->setCurrentIndex(static_cast<int>(outcome_.format.mark));
  cboForm->setCurrentIndex(static_cast<int>(outcome_.form));
  chkHeading->setChecked(outcome_.hasHeading);
}

void TableDialog::showVariables() {
  const int count = outcome_.problem ? outcome_.problem->LastVar + 1 : 0;
  lblDegree->setVisible(count > 0);
  lblCentre->setVisible(count > 0);
  for (int k = 0; k < kMaxVariables; ++k) {
    const QString name = k < count ? QString::fromStdString(outcome_.problem->VarName[k]) : QString();
    lblVariable[k]->setText(name);
    txtDegree[k]->setAccessibleName(QStringLiteral("Desired degree of %1").arg(name));
    txtCentre[k]->setAccessibleName(QStringLiteral("Center of expansion of %1").arg(name));
    for (QWidget* control : QWidgetList{lblVariable[k], txtDegree[k], txtCentre[k]}) control->setVisible(k < count);
  }
}

// Refusals first, the typed degrees and centres among them.
std::vector<TableFinding> TableDialog::findings() {
  std::vector<TableFinding> all;
  if (outcome_.problem) {
    std::vector<Long> degrees;
    std::vector<std::string> centres;
    for (Long k = 0; k <= outcome_.problem->LastVar; ++k) {
      degrees.push_back(degreeFrom(txtDegree[k]->text()));
      centres.push_back(txtCentre[k]->text().toStdString());
    }
    all = setDegreesAndCentres(*outcome_.problem, degrees, centres);
  }
  for (const bool refusals : {true, false})
    for (const TableFinding& finding : outcome_.findings)
      if (finding.isRefusal() == refusals) all.push_back(finding);
  return all;
}

void TableDialog::showFindings() {
  const std::vector<TableFinding> all = findings();
  lstFindings->clear();
  for (const TableFinding& finding : all) addFinding(finding);
  cmdCreate->setEnabled(outcome_.problem && !anyRefusal(all));
}

void TableDialog::addFinding(const TableFinding& finding) {
  const auto sign = finding.isRefusal() ? QStyle::SP_MessageBoxWarning : QStyle::SP_MessageBoxInformation;
  auto* item = new QListWidgetItem(style()->standardIcon(sign), QString::fromStdString(finding.text), lstFindings);
  item->setData(Qt::UserRole, QVariant::fromValue(finding.line));
}

std::optional<TableProblem> TableDialog::ask() {
  if (exec() != Accepted || !outcome_.problem) return std::nullopt;
  TableProblem created;
  for (Long k = 0; k <= outcome_.problem->LastVar; ++k) created.centres[k] = txtCentre[k]->text().toStdString();
  created.problem = std::move(*outcome_.problem);
  return created;
}

std::optional<TableProblem> problemFromTable(QWidget* parent, std::string_view text) {
  return TableDialog(parent, text).ask();
}

}  // namespace tavimor
