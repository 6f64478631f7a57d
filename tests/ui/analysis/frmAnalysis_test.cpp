#include "ui/analysis/frmAnalysis.h"

#include <gtest/gtest.h>

#include <QTabBar>
#include <QTest>

#include "analysis/analysis.h"
#include "analysis/degree_search.h"
#include "ui/analysis/analysis_page.h"
#include "ui/controls/remembered.h"
#include "ui/controls/window_places.h"

namespace tavimor {
namespace {

/// A page that counts what it is given.
class CountingPage : public AnalysisPage {
 public:
  enum class Asks { ForNothing, ForDegrees };

  explicit CountingPage(const QString& name, Asks asks = Asks::ForNothing) : AnalysisPage(name, name), asks_(asks) {}

  void showAnalysis(const std::shared_ptr<const Analysis>& /*analysis*/) override { ++analyses; }
  void showDegrees(const std::shared_ptr<const DegreeSearch>& /*degrees*/) override { ++searches; }
  bool asksForDegrees() const override { return asks_ == Asks::ForDegrees; }
  void saveChoices(QSettings& settings) const override { settings.setValue("choice", choice); }
  void restoreChoices(QSettings& settings) override { choice = settings.value("choice", choice).toInt(); }

  int analyses = 0, searches = 0, choice = 0;

 private:
  Asks asks_;
};

class AnalysisFrame : public testing::Test {
 protected:
  AnalysisFrame() { open(); }
  ~AnalysisFrame() override {
    close();
    Remembered().clear();
  }

  void open() {
    first = new CountingPage("pagFirst");
    second = new CountingPage("pagSecond", CountingPage::Asks::ForDegrees);
    window = new frmAnalysis({first, second});
    window->show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window));
  }

  void close() {
    window->unload();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  void look(const AnalysisPage* page) {
    QTabBar* tabs = window->findChild<QTabBar*>();
    const int place = page == first ? 0 : 1;
    QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(place).center());
    EXPECT_TRUE(page->isVisible());
  }

  static std::shared_ptr<const Analysis> someAnalysis() { return std::make_shared<Analysis>(ListedProblem()); }

  template <class T>
  T& find(const char* name) {
    return *window->findChild<T*>(name);
  }

  const WindowPlaces places;
  CountingPage* first;
  CountingPage* second;
  frmAnalysis* window;
};

TEST_F(AnalysisFrame, APageIsGivenAnAnalysisWhenItIsLookedAt) {
  window->showAnalysis(someAnalysis(), "fine", {});
  EXPECT_EQ(first->analyses, 1);
  EXPECT_EQ(second->analyses, 0);
  look(second);
  EXPECT_EQ(second->analyses, 1);
  look(first);
  look(second);
  EXPECT_EQ(first->analyses, 1);
  EXPECT_EQ(second->analyses, 1);
  window->showAnalysis(someAnalysis(), "fine", {});
  EXPECT_EQ(first->analyses, 1);
  EXPECT_EQ(second->analyses, 2);
}

TEST_F(AnalysisFrame, DegreesAreAskedForWhenAPageNeedsThem) {
  int asked = 0;
  QObject::connect(window, &frmAnalysis::degreesNeeded, [&] { ++asked; });
  window->showAnalysis(someAnalysis(), "fine", {});
  EXPECT_EQ(asked, 0);
  look(second);
  look(first);
  look(second);
  EXPECT_EQ(asked, 1);
  window->showDegrees(std::make_shared<DegreeSearch>());
  EXPECT_EQ(first->searches, 0);
  EXPECT_EQ(second->searches, 1);
  look(first);
  look(second);
  EXPECT_EQ(asked, 1);
  EXPECT_EQ(second->searches, 1);
}

TEST_F(AnalysisFrame, SaysTheVerdictAndOffersWhatToDo) {
  int wanted = 0;
  QObject::connect(window, &frmAnalysis::remedyWanted, [&] { ++wanted; });
  window->showAnalysis(someAnalysis(), "6 of 15 digits", "Centre in the middle");
  EXPECT_EQ(find<QLabel>("lblVerdict").text(), "6 of 15 digits");
  QTest::mouseClick(&find<QPushButton>("cmdRemedy"), Qt::LeftButton);
  EXPECT_EQ(wanted, 1);
  window->showAnalysis(someAnalysis(), "all digits", {});
  EXPECT_FALSE(find<QPushButton>("cmdRemedy").isVisible());
}

TEST_F(AnalysisFrame, WithoutAFitThePagesGreyUntilTheNextAnalysis) {
  const QColor text = first->palette().color(QPalette::Active, QPalette::Text);
  window->showAnalysis(someAnalysis(), "fine", "Do it");
  window->showNoFit("The degree of x has changed.");
  EXPECT_EQ(find<QLabel>("lblVerdict").text(), "The degree of x has changed.");
  EXPECT_FALSE(find<QPushButton>("cmdRemedy").isVisible());
  EXPECT_EQ(second->palette().color(QPalette::Active, QPalette::Text),
            QApplication::palette().color(QPalette::Disabled, QPalette::Text));
  EXPECT_TRUE(first->isEnabled());
  window->showAnalysis(someAnalysis(), "fine", {});
  EXPECT_EQ(first->palette().color(QPalette::Active, QPalette::Text), text);
}

TEST_F(AnalysisFrame, ShowsProgressUntilTheAnalysisComes) {
  EXPECT_FALSE(find<QProgressBar>("prgAnalysis").isVisible());
  window->showProgress(0.25);
  EXPECT_TRUE(find<QProgressBar>("prgAnalysis").isVisible());
  EXPECT_EQ(find<QProgressBar>("prgAnalysis").text(), "25%");
  window->showAnalysis(someAnalysis(), "fine", {});
  EXPECT_FALSE(find<QProgressBar>("prgAnalysis").isVisible());
}

TEST_F(AnalysisFrame, SizePageAndChoicesAreThereAgain) {
  look(second);
  second->choice = 7;
  window->resize(700, 432);
  QCoreApplication::processEvents();
  close();
  open();
  EXPECT_TRUE(second->isVisible());
  EXPECT_EQ(second->choice, 7);
  EXPECT_EQ(first->choice, 0);
  EXPECT_EQ(window->size(), QSize(700, 432));
}

}  // namespace
}  // namespace tavimor
