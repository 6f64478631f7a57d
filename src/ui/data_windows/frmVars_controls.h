#pragma once

#include <QPushButton>

#include "ui/controls/flex_grid.h"
#include "ui/controls/status_line.h"
#include "ui/controls/text_box.h"

namespace tavimor {

/// The controls of the variable values window under their names, with captions, fonts and places.
struct VarsControls {
  explicit VarsControls(QWidget& window);

  FlexGrid* MSFlexGridVars;
  TextBox* txtDataEntry;  // floats over the grid's current cell, in no layout
  QPushButton* cmdDelete;
  QPushButton* cmdExit;
  StatusLine* stbStatus;

 private:
  void makeControls(QWidget& window);
  void layOut(QWidget& window) const;
};

}  // namespace tavimor
