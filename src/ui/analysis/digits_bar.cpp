#include "ui/analysis/digits_bar.h"

#include <QPainter>

#include "analysis/right_digits.h"
#include "ui/analysis/analysis_table.h"

namespace tavimor {

void DigitsBar::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
  const QVariant digits = index.data(ResultTable::kSortRole);
  const bool isSelected = option.state.testFlag(QStyle::State_Selected);
  if (digits.isValid() && !isSelected) {
    QRect bar = option.rect.marginsRemoved({1, 2, 1, 2});
    bar.setWidth(static_cast<int>(bar.width() * digits.toDouble() / kMostDigits));
    QColor colour = option.palette.color(QPalette::Highlight);
    colour.setAlphaF(0.4F);
    painter->fillRect(bar, colour);
  }
  QStyledItemDelegate::paint(painter, option, index);
}

}  // namespace tavimor
