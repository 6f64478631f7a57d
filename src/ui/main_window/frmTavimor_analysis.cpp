#include <QApplication>

#include "runtime/number_text.h"
#include "ui/analysis/analysis_pages.h"
#include "ui/analysis/frmAnalysis.h"
#include "ui/controls/message_box.h"
#include "ui/main_window/frmTavimor.h"
#include "ui/main_window/step_recorder.h"

namespace tavimor {

namespace {

constexpr char kNoFit[] = "There is no fit of what the fields show now: press Compute in the main window.";
constexpr int kLookAtProgress = 100;  // milliseconds: of a shorter analysis no progress is shown

QString captionOf(const Advice& advice) {
  switch (advice.action) {
    case Action::None: return {};
    case Action::FitAgain: return QStringLiteral("&Compute");
    case Action::CentreInTheMiddle: return QStringLiteral("Centre in the &middle");
    case Action::PreciseCoefficients: return QStringLiteral("&Use precise coefficients");
    case Action::OtherDegrees: return QStringLiteral("Set the de&grees");
  }
  return {};
}

}  // namespace

void frmTavimor::connectAnalysis() {
  noAnalysisBecause_ = QLatin1String(kNoFit);
  connect(&analysisRunner_, &AnalysisRunner::analysed, this, &frmTavimor::showAnalysis);
  connect(&analysisRunner_, &AnalysisRunner::searched, this,
          [this](const std::shared_ptr<const DegreeSearch>& degrees) {
            if (analysisWindow_ != nullptr) analysisWindow_->showDegrees(degrees);
          });
  connect(&analysisRunner_, &AnalysisRunner::failed, this, [this](const std::string& why) {
    noAnalysis(QStringLiteral("The fit could not be analysed: %1").arg(QString::fromStdString(why)));
  });
  connect(&analysisLink_, &AnalysisLink::middlesWanted, this, &frmTavimor::useMiddles);
  connect(&analysisLink_, &AnalysisLink::degreesWanted, this, &frmTavimor::useDegrees);
  connect(&analysisLink_, &AnalysisLink::preciseCoefficientsWanted, this, &frmTavimor::usePreciseCoefficients);
  connect(&analysisLink_, &AnalysisLink::functionWanted, this, &frmTavimor::openFunctionAt);
  connect(cmdVerdict, &QPushButton::clicked, this, &frmTavimor::mnuAnalysis_Click);
  connect(&analysisProgress_, &QTimer::timeout, this, &frmTavimor::showAnalysisProgress);
  analysisProgress_.setInterval(kLookAtProgress);
}

void frmTavimor::mnuAnalysis_Click() {
  if (analysisWindow_ == nullptr || !analysisWindow_->isOpen()) {
    analysisWindow_ = new frmAnalysis(makeAnalysisPages(analysisLink_));
    connect(analysisWindow_, &frmAnalysis::remedyWanted, this, &frmTavimor::followAdvice);
    connect(analysisWindow_, &frmAnalysis::degreesNeeded, this, [this] {
      if (analysis_ != nullptr) analysisRunner_.searchDegrees(analysis_);
    });
    analysisWindow_->show();
    tellAnalysisWindow();
  }
  analysisWindow_->show();
  analysisWindow_->raise();
  analysisWindow_->activateWindow();
}

// What is listed has become a fit of the problem: by Compute, from a file, or because it was brought back.
void frmTavimor::fitFound(ListedFrom from) {
  analysis_ = nullptr;
  noAnalysisBecause_ = QStringLiteral("Looking at the fit ...");
  tellVerdict();
  analysisRunner_.analyse({model_, specFields(), model_, from});
  analysisProgress_.start();
}

void frmTavimor::fitDropped() {
  analysisRunner_.callOff();
  noAnalysis(QLatin1String(kNoFit));
}

void frmTavimor::noAnalysis(const QString& why) {
  analysis_ = nullptr;
  noAnalysisBecause_ = why;
  analysisProgress_.stop();
  tellVerdict();
}

void frmTavimor::showAnalysis(const std::shared_ptr<const Analysis>& analysis, const Advice& advice) {
  analysis_ = analysis;
  advice_ = advice;
  analysisProgress_.stop();
  tellVerdict();
}

void frmTavimor::tellVerdict() {
  cmdVerdict->setVisible(analysis_ != nullptr);
  if (analysis_ != nullptr) {
    cmdVerdict->setText(QString::fromStdString(advice_.summary));
    cmdVerdict->setToolTip(QString::fromStdString(advice_.sentence));
    cmdVerdict->setAccessibleName(QStringLiteral("Analysis: ") + cmdVerdict->text());
  }
  tellAnalysisWindow();
}

void frmTavimor::tellAnalysisWindow() {
  if (analysisWindow_ == nullptr || !analysisWindow_->isOpen()) return;
  if (analysis_ == nullptr)
    analysisWindow_->showNoFit(noAnalysisBecause_);
  else
    analysisWindow_->showAnalysis(analysis_, QString::fromStdString(advice_.sentence), captionOf(advice_));
}

void frmTavimor::showAnalysisProgress() {
  if (analysisWindow_ != nullptr && analysisRunner_.share()) analysisWindow_->showProgress(*analysisRunner_.share());
}

void frmTavimor::followAdvice() {
  switch (advice_.action) {
    case Action::None: break;
    case Action::FitAgain:
      if (leaveField()) cmdCompute_Click();
      break;
    case Action::CentreInTheMiddle: useMiddles(); break;
    case Action::PreciseCoefficients: usePreciseCoefficients(); break;
    case Action::OtherDegrees: useDegrees(advice_.degrees, Then::Compute); break;
  }
}

// As a person who clicks a button does: the field in hand is left, unless it refuses.
bool frmTavimor::leaveField() {
  if (!isEnabled() || QApplication::activeModalWidget() != nullptr) {
    showWarning(QStringLiteral("The main window waits: press Done in the window of the values, or close the dialog."));
    return false;
  }
  cmdCompute->setFocus();
  for (TextBox* field : findChildren<TextBox*>()) {
    if (field->leave()) continue;
    showWarning(
        QStringLiteral("A field of the main window holds what cannot be taken: %1").arg(field->accessibleName()));
    return false;
  }
  return true;
}

void frmTavimor::useMiddles() {
  if (!leaveField()) return;
  for (Long k = 0; k <= model_.LastVar; ++k) blocks.at(k).txtExpansion->setText(QStringLiteral("*"));
  cmdCompute_Click();
}

void frmTavimor::useDegrees(const PerVariable<Long>& degrees, Then then) {
  if (!leaveField()) return;
  for (Long k = 0; k <= model_.LastVar; ++k) {
    TextBox* field = blocks.at(k).txtTerms;
    const QString before = field->text();
    bool cancel = false;
    txtTerms_GotFocus(k);
    field->setText(QString::fromStdString(numberText(degrees[k])));
    txtTerms_Validate(k, cancel);
    if (cancel) {
      field->setText(before);
      return showWarning(QStringLiteral("The degree must be below the number of values."));
    }
    txtTerms_LostFocus(k);
  }
  if (then == Then::Compute) cmdCompute_Click();
}

bool frmTavimor::isAnalysisOfTheModel() const {
  return model_.FitDone && analysis_ != nullptr && analysis_->opinion.isExact() &&
         analysis_->problem().Degree == model_.Degree && analysis_->problem().Centre == model_.Centre &&
         analysis_->problem().LastPoint == model_.LastPoint;
}

// Until the next fit, or an undo.
void frmTavimor::usePreciseCoefficients() {
  if (!isAnalysisOfTheModel()) {
    showWarning(QStringLiteral("The fit is not the one that was analysed: press Compute first."));
    return;
  }
  steps_->takeTyped();
  steps_->begin({"precise coefficients used", {}});
  steps_->keepResults();
  static_cast<Fit&>(model_) = listedForm(analysis_->opinion.precise);
  isPreciseListed_ = true;
  lstCoeff->clear();
  ShowResults();
  steps_->settle();
  fitFound(ListedFrom::PreciseSolution);
}

// After another state was brought back.
void frmTavimor::showWhatIsListed() {
  isPreciseListed_ = lstCoeff->count() > 0 && lstCoeff->text(0) == QLatin1String(kPreciseListed);
  if (!model_.FitDone)
    fitDropped();
  else
    fitFound(isPreciseListed_ ? ListedFrom::PreciseSolution : ListedFrom::FitMadeNow);
}

void frmTavimor::openFunctionAt(const PerVariable<Long>& index) {
  if (!leaveField()) return;
  if (analysis_ != nullptr && analysis_->problem().LastPoint == model_.LastPoint)
    openFunctionWindow(index);
  else
    showWarning(QStringLiteral("The grid is not the one that was analysed: press Compute first."));
}

}  // namespace tavimor
