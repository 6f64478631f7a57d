#pragma once

#include <QStyledItemDelegate>

namespace tavimor {

/// Paints a number of right digits with a bar behind it, 15 digits filling the cell. A cell without a number shows its
/// text alone.
class DigitsBar : public QStyledItemDelegate {
  Q_OBJECT

 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

}  // namespace tavimor
