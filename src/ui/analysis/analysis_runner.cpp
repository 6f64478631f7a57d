#include "ui/analysis/analysis_runner.h"

#include <atomic>
#include <new>

#include "runtime/run_time_error.h"

namespace tavimor {

/// What the thread of a job and the object share.
struct AnalysisRunner::Work : std::enable_shared_from_this<Work> {
  explicit Work(AnalysisRunner& theRunner) : runner(theRunner) {}

  AnalysisOptions options() {
    AnalysisOptions how;
    how.progress = [this](double done) { share = done; };
    how.cancelled = [this] { return isCalledOff.load(); };
    return how;
  }

  /// Does something in the thread of the object, unless the job is called off before.
  void deliver(std::function<void()> tell) {
    QMetaObject::invokeMethod(
        &runner,
        [work = shared_from_this(), tell = std::move(tell)] {
          if (!work->isCalledOff) tell();
        },
        Qt::QueuedConnection);
  }

  void fail(const std::string& why) {
    deliver([this, why] { emit runner.failed(why); });
  }

  AnalysisRunner& runner;
  std::atomic<bool> isCalledOff = false, isOver = false;
  std::atomic<double> share = 0.0;
};

AnalysisRunner::~AnalysisRunner() {
  callOff();
  for (QThread* thread : findChildren<QThread*>()) thread->wait();
}

void AnalysisRunner::callOff() {
  if (work_ != nullptr) work_->isCalledOff = true;
  work_.reset();
}

std::optional<double> AnalysisRunner::share() const {
  if (work_ == nullptr || work_->isOver) return std::nullopt;
  return work_->share;
}

void AnalysisRunner::start(Job job) {
  callOff();
  work_ = std::make_shared<Work>(*this);
  QThread* thread = QThread::create([work = work_, job = std::move(job)] {
    try {
      job(*work);
    } catch (const AnalysisCancelled&) {
      return;
    } catch (const Failure& failure) {
      work->fail(failure.report());
    } catch (const std::bad_alloc&) {
      work->fail(RunTimeError(ErrorNumber::OutOfMemory).report());
    }
    work->isOver = true;
  });
  thread->setParent(this);
  connect(thread, &QThread::finished, thread, &QObject::deleteLater);
  thread->start();
}

void AnalysisRunner::analyse(ListedProblem listed) {
  start([listed = std::make_shared<ListedProblem>(std::move(listed))](Work& work) {
    const AnalysisOptions options = work.options();
    constexpr double kLevel = 0.95;
    const std::shared_ptr<const Analysis> analysis =
        tavimor::analyse(std::move(*listed), kLevel, Reading::AsTyped, options);
    const Advice advice = adviceOn(*analysis, options);
    work.deliver([&runner = work.runner, analysis, advice] { emit runner.analysed(analysis, advice); });
  });
}

void AnalysisRunner::searchDegrees(const std::shared_ptr<const Analysis>& analysis) {
  start([analysis](Work& work) {
    const PerVariable<Long> largest = largestDegrees(analysis->problem());
    if (combinationsUpTo(largest) > kMostCombinations) {
      work.deliver([&runner = work.runner] { emit runner.searched(std::make_shared<DegreeSearch>()); });
      return;
    }
    const DegreeSearcher searcher(analysis->opinion.data, largest, work.options());
    auto search = std::make_shared<DegreeSearch>(searcher.search());
    work.deliver([&runner = work.runner, search] { emit runner.searched(search); });
    auto withPress = std::make_shared<DegreeSearch>(*search);
    withPress->press = searcher.pressOfBest(*search);
    work.deliver([&runner = work.runner, withPress] { emit runner.searched(withPress); });
  });
}

}  // namespace tavimor
