#pragma once

#include <QDialog>
#include <string>

#include "formats/formulas/export_formats.h"
#include "ui/export/export_dialog_controls.h"

namespace tavimor {

/// The dialog in which the user chooses the form of a formula, sees it, and copies or saves it.
class ExportDialog : public QDialog, private ExportDialogControls {
  Q_OBJECT

 public:
  /// The fit must have a formula; both must outlive the dialog.
  ExportDialog(QWidget* parent, const Problem& problem, const Fit& fit, const std::string& name);

 private:
  const ExportFormat& format() const;
  FormulaOptions options() const;
  void write();
  void show(const QString& preview);
  void cmdSave_Click();
  void save(const std::string& path);

  const Problem& problem_;
  const Fit& fit_;
  std::string written_;
};

}  // namespace tavimor
