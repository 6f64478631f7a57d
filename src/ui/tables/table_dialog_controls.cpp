#include "ui/tables/table_dialog_controls.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <tuple>

#include "ui/controls/control_array.h"
#include "ui/controls/fonts.h"
#include "ui/controls/make_control.h"

namespace tavimor {

namespace {

constexpr QSize kInitialSize(720, 600);
constexpr int kWidestNumber = 12;

QComboBox* makeChoice(const char* name, QLabel* label, const QStringList& items) {
  auto* choice = new QComboBox;
  choice->setObjectName(QLatin1String(name));
  choice->setFont(sansSerifFont());
  choice->addItems(items);
  label->setBuddy(choice);
  return choice;
}

}  // namespace

TableDialogControls::TableDialogControls(QWidget& window) {
  makeFormatControls();
  makeControls();
  for (int k = 0; k < kMaxVariables; ++k) makeVariable(k);

  auto* whole = new QVBoxLayout(&window);
  whole->addLayout(formatLayout());
  whole->addWidget(grdPreview, 3);
  whole->addWidget(lblFindings);
  whole->addWidget(lstFindings, 2);
  whole->addWidget(chkMeans);
  whole->addWidget(chkShrink);
  whole->addLayout(variablesLayout());
  whole->addLayout(buttonsLayout());
  window.resize(kInitialSize);
}

void TableDialogControls::makeFormatControls() {
  lblSeparator = makeControl<QLabel>(QStringLiteral("lblSeparator"), "Se&parator:");
  cboSeparator = makeChoice(
      "cboSeparator", lblSeparator,
      {QStringLiteral("Comma"), QStringLiteral("Semicolon"), QStringLiteral("Tab"), QStringLiteral("Blanks")});
  lblMark = makeControl<QLabel>(QStringLiteral("lblMark"), "Decimal &mark:");
  cboMark = makeChoice("cboMark", lblMark, {QStringLiteral("Point"), QStringLiteral("Comma")});
  lblForm = makeControl<QLabel>(QStringLiteral("lblForm"), "&Form:");
  cboForm = makeChoice("cboForm", lblForm, {QStringLiteral("List of points"), QStringLiteral("Cross table")});
  chkHeading = makeControl<QCheckBox>(QStringLiteral("chkHeading"), "&Heading");
}

void TableDialogControls::makeControls() {
  grdPreview = new TablePreview(QStringLiteral("grdPreview"));
  lblFindings = makeControl<QLabel>(QStringLiteral("lblFindings"), "What was found (a double click shows the line):");
  lstFindings = new QListWidget;
  lstFindings->setObjectName(QStringLiteral("lstFindings"));
  lstFindings->setAccessibleName(QStringLiteral("What was found"));
  lstFindings->setFont(verdanaFont());
  lstFindings->setWordWrap(true);
  chkMeans = makeControl<QCheckBox>(QStringLiteral("chkMeans"), "&Take the mean of points that stand twice");
  chkShrink =
      makeControl<QCheckBox>(QStringLiteral("chkShrink"), "&Leave out values until no point of the grid is missing");
  lblDegree = makeControl<QLabel>(QStringLiteral("lblDegree"), "Desired degree:");
  lblCentre = makeControl<QLabel>(QStringLiteral("lblCentre"), "Center of expansion:");
  cmdCreate = makeButton(QStringLiteral("cmdCreate"), "&Create");
  cmdCreate->setDefault(true);
  cmdCancel = makeButton(QStringLiteral("cmdCancel"), "Cancel");
}

void TableDialogControls::makeVariable(int k) {
  lblVariable[k] = makeControl<QLabel>(elementName("lblVariable", k), "");
  lblVariable[k]->setFont(verdanaFont());
  lblVariable[k]->setTextFormat(Qt::PlainText);
  for (auto& [array, boxes, text] :
       {std::tuple{"txtDegree", &txtDegree, "1"}, std::tuple{"txtCentre", &txtCentre, "*"}}) {
    auto* box = new TextBox(elementName(array, k));
    box->setFont(verdanaFont());
    box->setText(QLatin1String(text));
    (*boxes)[k] = box;
  }
  txtCentre[k]->setToolTip(QStringLiteral("Enter \"*\" for center of interval"));
}

QLayout* TableDialogControls::formatLayout() const {
  auto* format = new QHBoxLayout;
  for (QWidget* control : QWidgetList{lblSeparator, cboSeparator, lblMark, cboMark, lblForm, cboForm, chkHeading})
    format->addWidget(control);
  format->addStretch(1);
  return format;
}

QLayout* TableDialogControls::variablesLayout() const {
  auto* variables = new QGridLayout;
  variables->addWidget(lblDegree, 1, 0);
  variables->addWidget(lblCentre, 2, 0);
  for (int k = 0; k < kMaxVariables; ++k) {
    txtCentre[k]->setMinimumWidth(widthOf(*txtCentre[k], kWidestNumber));
    variables->addWidget(lblVariable[k], 0, k + 1);
    variables->addWidget(txtDegree[k], 1, k + 1);
    variables->addWidget(txtCentre[k], 2, k + 1);
  }
  return variables;
}

QLayout* TableDialogControls::buttonsLayout() const {
  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  buttons->addWidget(cmdCreate);
  buttons->addWidget(cmdCancel);
  return buttons;
}

}  // namespace tavimor
