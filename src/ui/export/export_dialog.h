#pragma once

#include <QDialog>
#include <optional>
#include <string>

#include "analysis/second_opinion.h"
#include "formats/formulas/export_formats.h"
#include "model/spec_fields.h"
#include "ui/export/export_dialog_controls.h"

namespace tavimor {

/// The dialog in which the user chooses the form of a formula, sees it, and copies or saves it. A second opinion, where
/// there is one, gives the right digits and the precise coefficients.
class ExportDialog : public QDialog, private ExportDialogControls {
  Q_OBJECT

 public:
  /// The fit must have a formula; both must outlive the dialog.
  ExportDialog(QWidget* parent, const Problem& problem, const Fit& fit, const AllSpecFields& fields,
               const std::string& name);

 private:
  const ExportFormat& format() const;
  FormulaOptions options() const;
  const Fit& chosenFit() const { return chkPrecise->isChecked() ? precise_ : fit_; }
  bool hasPrecise() const { return opinion_ && opinion_->isExact(); }
  QString refusal() const;
  std::string writtenNow() const;
  void write();
  void show(const QString& preview);
  void cmdSave_Click();
  void save(const std::string& path);

  const Problem& problem_;
  const Fit& fit_;
  std::optional<SecondOpinion> opinion_;
  Fit precise_;
  std::string written_;
};

}  // namespace tavimor
