#include "ui/controls/list_box.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QStyledItemDelegate>
#include <algorithm>

#include "ui/controls/fonts.h"

namespace tavimor {

namespace {

QString withoutTrailingBlanks(QString text) {
  while (text.endsWith(QLatin1Char(' '))) text.chop(1);
  return text;
}

// Lays out and paints a line without the blanks at its end. The columns of a fixed-pitch line are as wide as the
// longest line needs, so that no text is measured twice.
class LineDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QString displayText(const QVariant& value, const QLocale&) const override {
    return withoutTrailingBlanks(value.toString());
  }

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    constexpr int kMargin = 8;
    const QFontMetrics& metrics = option.fontMetrics;
    const QString text = withoutTrailingBlanks(index.data().toString());
    return {metrics.horizontalAdvance(text) + kMargin, metrics.height()};
  }
};

}  // namespace

ListBox::ListBox(const QString& name, QWidget* parent) : QListWidget(parent) {
  setObjectName(name);
  setFont(fixedPitchFont());
  setItemDelegate(new LineDelegate(this));
  setSelectionMode(ExtendedSelection);
  setTextElideMode(Qt::ElideNone);
  setHorizontalScrollMode(ScrollPerPixel);

  const auto addCommand = [this](const QString& text, QKeySequence::StandardKey key, auto command) {
    auto* action = new QAction(text, this);
    action->setShortcut(key);
    action->setShortcutContext(Qt::WidgetShortcut);
    connect(action, &QAction::triggered, this, command);
    addAction(action);
  };
  addCommand(QStringLiteral("Copy"), QKeySequence::Copy,
             [this] { QGuiApplication::clipboard()->setText(selectedText()); });
  addCommand(QStringLiteral("Select all"), QKeySequence::SelectAll, [this] { selectAll(); });
  setContextMenuPolicy(Qt::ActionsContextMenu);
}

QString ListBox::selectedText() const {
  QModelIndexList rows = selectionModel()->selectedRows();
  std::sort(rows.begin(), rows.end());
  QStringList lines;
  for (const QModelIndex& row : rows) lines << withoutTrailingBlanks(row.data().toString());
  return lines.join(QLatin1Char('\n'));
}

}  // namespace tavimor
