#pragma once

#include <QObject>
#include <QThread>
#include <functional>
#include <memory>
#include <optional>

#include "analysis/advice.h"
#include "analysis/degree_search.h"

namespace tavimor {

/// Makes analyses in threads, one at a time: what is started calls off what is running. The signals come in the thread
/// of the object; of what was called off there is none.
class AnalysisRunner : public QObject {
  Q_OBJECT

 public:
  ~AnalysisRunner() override;

  void analyse(ListedProblem listed);

  /// How well other degrees would fit the problem of an analysis: first without PRESS, then with it.
  void searchDegrees(const std::shared_ptr<const Analysis>& analysis);

  void callOff();

  /// How much is done of what is running, 0..1; nothing where nothing is.
  std::optional<double> share() const;

 signals:
  void analysed(const std::shared_ptr<const Analysis>& analysis, const Advice& advice);
  void searched(const std::shared_ptr<const DegreeSearch>& degrees);
  void failed(const std::string& why);

 private:
  struct Work;
  using Job = std::function<void(Work& work)>;

  void start(Job job);

  std::shared_ptr<Work> work_;
};

}  // namespace tavimor
