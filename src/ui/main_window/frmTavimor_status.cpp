#include <QFileInfo>

#include "runtime/number_text.h"
#include "runtime/text.h"
#include "ui/data_windows/frmFun.h"
#include "ui/data_windows/frmVars.h"
#include "ui/main_window/frmTavimor.h"

namespace tavimor {

namespace {

// As many digits as tell what a fit is worth; the list shows all of them.
QString inShort(double number) { return QString::number(number, 'g', 6); }

QString worthOf(const Fit& fit) {
  if (!hasFiniteResults(fit)) return QStringLiteral("The results are not finite numbers: this fit is worth nothing");
  const std::size_t count = fit.Coef.size();
  return QStringLiteral("%1 %2, correlation %3, standard error %4")
      .arg(count)
      .arg(count == 1 ? QStringLiteral("coefficient") : QStringLiteral("coefficients"), inShort(fit.CorrCoef),
           inShort(fit.StdErr));
}

std::optional<Long> variableWithoutRoom(const Problem& problem) {
  for (Long k = 0; k <= problem.LastVar; ++k)
    if (problem.Degree[k] > problem.LastPoint[k]) return k;
  return std::nullopt;
}

}  // namespace

// A control character of a name is shown by its escape, as in messages.
void frmTavimor::showFileName() {
  const QString path = QString::fromStdString(model_.FileName);
  const std::string name = QFileInfo(path).fileName().toStdString();
  QString text = path.isEmpty() ? QStringLiteral("no file") : QString::fromStdString(withEscapes(name));
  if (hasUnsavedChanges()) text += QStringLiteral(" *");
  lblFileName->setText(text);
  lblFileName->setAccessibleDescription(hasUnsavedChanges() ? QStringLiteral("not saved") : QString());
  setWindowFilePath(path);
}

void frmTavimor::showBlockOfBlocks(Long k) {
  lblBlock->setText(QStringLiteral("block %1 of %2").arg(k + 1).arg(model_.LastVar + 1));
}

// In the window that is in front, and in this one, which may be in front next.
void frmTavimor::tell(const QString& hint) {
  stbStatus->showHint(hint);
  if (functionWindow_ != nullptr) functionWindow_->tell(hint);
  if (valuesWindow_ != nullptr) valuesWindow_->tell(hint);
}

void frmTavimor::showWorth() {
  if (model_.FitDone)
    stbStatus->showResult(worthOf(model_));
  else if (const std::optional<Long> k = variableWithoutRoom(model_))
    stbStatus->showResult(QStringLiteral("No fit: the degree of %1 is not below its number of values")
                              .arg(QString::fromStdString(withEscapes(model_.VarName[*k]))));
  else if (lstCoeff->count() > 0)
    stbStatus->showResult(QStringLiteral("No fit: values of a variable are equal, or too close to tell apart"));
  else if (model_.ErrNumber != 0)
    stbStatus->showResult(
        QStringLiteral("No fit: a number on the way is beyond all bounds, or there is no room for it"));
  else
    stbStatus->showResult(QStringLiteral("No fit: the work was called off"));
}

}  // namespace tavimor
