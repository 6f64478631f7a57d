#include "ui/analysis/frmAnalysis.h"

#include <QHBoxLayout>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "ui/analysis/analysis_page.h"
#include "ui/controls/make_control.h"
#include "ui/controls/remembered.h"

namespace tavimor {

namespace {

constexpr QSize kInitialSize(1000, 640);
constexpr int kWhole = 1000;  // of the progress bar

bool contains(const std::vector<AnalysisPage*>& pages, const AnalysisPage& page) {
  return std::find(pages.begin(), pages.end(), &page) != pages.end();
}

}  // namespace

frmAnalysis::frmAnalysis(const std::vector<AnalysisPage*>& pages) : Form(QStringLiteral("frmAnalysis")) {
  setWindowTitle(QStringLiteral("Analysis"));
  makeControls();
  addPages(pages);
  layOut();
  restoreChoices();
  connect(tabPages, &QTabWidget::currentChanged, this, &frmAnalysis::showCurrentPage);
  connect(cmdRemedy, &QPushButton::clicked, this, &frmAnalysis::remedyWanted);
}

void frmAnalysis::makeControls() {
  lblVerdict = makeControl<QLabel>(QStringLiteral("lblVerdict"), "");
  lblVerdict->setTextFormat(Qt::PlainText);
  lblVerdict->setWordWrap(true);
  lblVerdict->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  lblVerdict->setAccessibleName(QStringLiteral("What the fit is worth"));
  cmdRemedy = makeButton(QStringLiteral("cmdRemedy"), "");
  prgAnalysis = new QProgressBar;
  prgAnalysis->setObjectName(QStringLiteral("prgAnalysis"));
  prgAnalysis->setAccessibleName(QStringLiteral("Progress of the analysis"));
  prgAnalysis->setRange(0, kWhole);
  prgAnalysis->hide();
  tabPages = new QTabWidget;
  tabPages->setObjectName(QStringLiteral("tabPages"));
  tabPages->setFont(sansSerifFont());
}

void frmAnalysis::addPages(const std::vector<AnalysisPage*>& pages) {
  pages_ = pages;
  for (AnalysisPage* page : pages_) tabPages->addTab(page, page->title());
}

void frmAnalysis::layOut() {
  auto* verdict = new QHBoxLayout;
  verdict->addWidget(lblVerdict, 1);
  verdict->addWidget(cmdRemedy, 0, Qt::AlignTop);
  auto* whole = new QVBoxLayout(this);
  whole->addLayout(verdict);
  whole->addWidget(prgAnalysis);
  whole->addWidget(tabPages, 1);
  resize(kInitialSize);
}

AnalysisPage& frmAnalysis::currentPage() const {
  return *pages_.at(static_cast<std::size_t>(tabPages->currentIndex()));
}

void frmAnalysis::say(const QString& verdict, const QString& remedy) {
  lblVerdict->setText(verdict);
  cmdRemedy->setText(remedy);
  cmdRemedy->setVisible(!remedy.isEmpty());
}

void frmAnalysis::showAnalysis(const std::shared_ptr<const Analysis>& analysis, const QString& verdict,
                               const QString& remedy) {
  analysis_ = analysis;
  degrees_ = nullptr;
  hasAskedForDegrees_ = false;
  showing_.clear();
  showingDegrees_.clear();
  prgAnalysis->hide();
  say(verdict, remedy);
  setGrey(false);
  showCurrentPage();
}

void frmAnalysis::showDegrees(const std::shared_ptr<const DegreeSearch>& degrees) {
  degrees_ = degrees;
  showingDegrees_.clear();
  prgAnalysis->hide();
  showCurrentPage();
}

// The pages that are not looked at wait until they are.
void frmAnalysis::showCurrentPage() {
  AnalysisPage& page = currentPage();
  if (analysis_ == nullptr) return;
  if (!contains(showing_, page)) {
    showing_.push_back(&page);
    page.showAnalysis(analysis_);
  }
  if (!page.asksForDegrees() || contains(showingDegrees_, page)) return;
  if (degrees_ != nullptr) {
    showingDegrees_.push_back(&page);
    page.showDegrees(degrees_);
  } else if (!std::exchange(hasAskedForDegrees_, true)) {
    emit degreesNeeded();
  }
}

void frmAnalysis::showNoFit(const QString& why) {
  prgAnalysis->hide();
  say(why, {});
  setGrey(true);
}

void frmAnalysis::showProgress(double share) {
  prgAnalysis->setValue(static_cast<int>(share * kWhole));
  prgAnalysis->show();
}

void frmAnalysis::setGrey(bool isGrey) {
  for (AnalysisPage* page : pages_) page->setGrey(isGrey);
}

void frmAnalysis::restoreChoices() {
  Remembered settings;
  settings.beginGroup(objectName());
  const QString chosen = settings.value(QStringLiteral("page")).toString();
  for (AnalysisPage* page : pages_) {
    if (page->objectName() == chosen) tabPages->setCurrentWidget(page);
    settings.beginGroup(page->objectName());
    page->restoreChoices(settings);
    settings.endGroup();
  }
}

void frmAnalysis::saveChoices() const {
  Remembered settings;
  settings.beginGroup(objectName());
  settings.setValue(QStringLiteral("page"), currentPage().objectName());
  for (const AnalysisPage* page : pages_) {
    settings.beginGroup(page->objectName());
    page->saveChoices(settings);
    settings.endGroup();
  }
}

}  // namespace tavimor
