#pragma once

#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTreeWidget>

namespace tavimor {

/// The controls of the dialog that lists what can be restored, under their names. What they do is the dialog's.
struct RestoreDialogControls {
  explicit RestoreDialogControls(QWidget& dialog);

  QLabel* lblRestore;
  QTreeWidget* lstRestore;
  QLabel* lblPreview;
  QPlainTextEdit* txtPreview;
  QPushButton* cmdOpen;
  QPushButton* cmdRemove;
  QPushButton* cmdClose;

 private:
  void makeList();
  void layOut(QWidget& dialog) const;
};

}  // namespace tavimor
