#include "ui/analysis/shown_fits.h"

#include <QFutureWatcher>
#include <QtConcurrent>
#include <new>
#include <type_traits>

#include "runtime/run_time_error.h"

namespace tavimor {

template <class Make, class Take>
void ShownFits::inThread(Make make, Take take) {
  struct Outcome {
    std::invoke_result_t<Make> made;
    std::string failure;
  };
  auto* watcher = new QFutureWatcher<Outcome>(this);
  connect(watcher, &QFutureWatcher<Outcome>::finished, this, [this, watcher, take] {
    const Outcome outcome = watcher->result();
    watcher->deleteLater();
    if (outcome.made != nullptr)
      take(outcome.made);
    else
      emit failed(outcome.failure);
  });
  watcher->setFuture(QtConcurrent::run([make]() -> Outcome {
    try {
      return {make(), {}};
    } catch (const Failure& failure) {
      return {nullptr, failure.report()};
    } catch (const std::bad_alloc&) {
      return {nullptr, RunTimeError(ErrorNumber::OutOfMemory).report()};
    }
  }));
}

void ShownFits::ask(const std::shared_ptr<const Analysis>& analysis) {
  if (analysis_ == analysis) {
    if (fit_ != nullptr) emit fitMade(fit_);
    return;
  }
  analysis_ = analysis;
  fit_ = nullptr;
  residuals_ = nullptr;
  inThread([analysis] { return shownFit(analysis); },
           [this](const std::shared_ptr<const ShownFit>& fit) {
             if (fit->analysis != analysis_) return;
             fit_ = fit;
             emit fitMade(fit_);
           });
}

void ShownFits::askForResiduals() {
  if (residuals_ != nullptr) {
    emit residualsMade(residuals_);
    return;
  }
  inThread([fit = fit_] { return std::make_shared<const ResidualPictures>(residualPictures(*fit)); },
           [this, fit = fit_](const std::shared_ptr<const ResidualPictures>& residuals) {
             if (fit != fit_) return;
             residuals_ = residuals;
             emit residualsMade(residuals_);
           });
}

}  // namespace tavimor
