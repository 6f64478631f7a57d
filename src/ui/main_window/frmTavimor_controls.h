#pragma once

#include <QAction>
#include <QGridLayout>
#include <QGroupBox>
#include <vector>

#include "ui/controls/elided_label.h"
#include "ui/controls/list_box.h"
#include "ui/controls/status_line.h"
#include "ui/controls/work_display.h"
#include "ui/main_window/spec_block.h"

class QMenuBar;

namespace tavimor {

/// The controls of the main window under their names, with captions, fonts and places. What they do is the window's.
struct MainControls {
  explicit MainControls(QWidget& window);

  QMenuBar* menuBar;
  QAction* mnuFile;
  QAction* mnuOpen;
  QAction* mnuFileBar1;
  QAction* mnuSave;
  QAction* mnuSaveAs;
  QAction* mnuFileBar2;
  QAction* mnuPrint;
  QAction* mnuTools;
  QAction* mnuUndo;
  QAction* mnuRedo;
  QAction* mnuToolsBar1;
  QAction* mnuImport;
  QAction* mnuPaste;
  QAction* mnuExport;
  QAction* mnuRestore;
  QAction* mnuAnalysis;
  QAction* mnuToolsBar2;
  QAction* mnuRecent;
  QAction* mnuNewWindow;
  QAction* mnuHelp;
  QAction* mnuAbout;

  QLabel* lblOrder;
  TextBox* txtOrder;
  QLabel* lblVarNam;
  TextBox* txtVarNams;

  QGroupBox* fraSpecs;
  QLabel* lblVariable;
  QLabel* lblLL;
  QLabel* lblUL;
  QLabel* lblPoints;
  QLabel* lblTerms;
  QLabel* lblExpansion;
  std::vector<SpecBlock> blocks;
  QPushButton* cmdPrevVar;
  QPushButton* cmdNextVar;

  QPushButton* cmdEditFun;
  QPushButton* cmdCompute;
  QPushButton* cmdEvaluations;
  ListBox* lstCoeff;
  QAction* mnuCopyTable;  // in the context menu of the list

  StatusLine* stbStatus;
  WorkDisplay* wrkDisplay;   // in the status line
  QPushButton* cmdVerdict;   // what the fit is worth, once that is known; opens the analysis window
  ElidedLabel* lblFileName;  // both on the right of the status line
  QLabel* lblBlock;

  /// Makes the next block, hidden, in the place that all blocks share.
  void addBlock();

  /// Lets the labels of the fields stand for the fields of block k, and Tab go as one reads.
  void labelBlock(std::size_t k) const;
  void orderTabs() const;

 private:
  void makeMenus(QWidget& window);
  void makeFileMenu();
  void makeToolsMenu();
  void makeControls();
  void makeStatusLine();
  void layOutSpecs();
  QLayout* headingLayout() const;
  QLayout* buttonsLayout() const;

  QGridLayout* specs_;
  QGridLayout* blockButtons_;
};

}  // namespace tavimor
