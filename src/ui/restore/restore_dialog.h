#pragma once

#include <QDialog>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "formats/restore/restorable.h"
#include "ui/restore/restore_dialog_controls.h"

namespace tavimor {

/// Where a chosen problem will be opened: a window holds one problem in its life.
enum class OpensIn { ThisWindow, NewWindow };

/// Lists what can be restored: what sessions left unsaved, then the replaced pairs under their files. The user looks at
/// the beginning of each, removes what is not wanted any more, and chooses one.
class RestoreDialog : public QDialog, private RestoreDialogControls {
  Q_OBJECT

 public:
  RestoreDialog(QWidget* parent, const std::string& stateFolder, OpensIn opensIn);

  /// Waits for the user. Nothing where the dialog was closed.
  std::optional<Restorable> ask();

 private:
  void fill();
  QTreeWidgetItem* fileItem(const std::string& file);
  void addItem(std::size_t n);
  void showChosen();
  void cmdRemove_Click();
  const Restorable* chosen() const;

  std::string stateFolder_;
  std::vector<Restorable> all_;
  std::map<std::string, QTreeWidgetItem*> files_;
};

}  // namespace tavimor
