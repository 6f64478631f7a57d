#pragma once

#include <QObject>
#include <memory>
#include <string>

#include "analysis/pictures/residual_pictures.h"

namespace tavimor {

/// Makes what pictures show of an analysis, in a thread, once for all pages.
class ShownFits : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;

  /// Ends in fitMade, at once where it is made already, or in failed. What was asked for before is forgotten.
  void ask(const std::shared_ptr<const Analysis>& analysis);

  /// The residuals of the last fit made: ends in residualsMade or failed.
  void askForResiduals();

 signals:
  void fitMade(const std::shared_ptr<const ShownFit>& fit);
  void residualsMade(const std::shared_ptr<const ResidualPictures>& residuals);
  void failed(const std::string& why);

 private:
  /// Calls make() in a thread and take() with what it has made in this one, unless the object has gone meanwhile.
  template <class Make, class Take>
  void inThread(Make make, Take take);

  std::shared_ptr<const Analysis> analysis_;  // of the fit, or of the one on its way
  std::shared_ptr<const ShownFit> fit_;
  std::shared_ptr<const ResidualPictures> residuals_;
};

}  // namespace tavimor
