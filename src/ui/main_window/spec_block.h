#pragma once

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

#include "model/spec_fields.h"
#include "ui/controls/text_box.h"

namespace tavimor {

/// Element k of each control array of the main window: the specification block of variable k. A block is made with
/// the least specification that holds together, so that a variable nobody has looked at stands in no one's way.
struct SpecBlock {
  QLabel* lblVar;
  TextBox* txtLL;
  TextBox* txtUL;
  TextBox* txtPoints;
  TextBox* txtTerms;
  TextBox* txtExpansion;
  QCheckBox* chkSpaced;
  QPushButton* cmdAddVars;
  QPushButton* cmdEditVars;
};

SpecBlock makeSpecBlock(int k);

void showBlock(const SpecBlock& block);
void hideBlock(const SpecBlock& block);

SpecFields fieldsOf(const SpecBlock& block);
void showFields(const SpecBlock& block, const SpecFields& fields);

}  // namespace tavimor
