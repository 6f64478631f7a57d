#include "ui/controls/list_box.h"

#include <QAbstractListModel>
#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QStyledItemDelegate>
#include <algorithm>

#include "ui/controls/fonts.h"

namespace tavimor {

namespace {

constexpr int kWithoutBlanksRole = Qt::UserRole;

// Lays out and paints a line without the blanks at its end. The columns of a fixed-pitch line are as wide as the
// longest line needs, so that no text is measured twice.
class LineDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    constexpr int kMargin = 8;
    const QFontMetrics& metrics = option.fontMetrics;
    return {metrics.horizontalAdvance(index.data(kWithoutBlanksRole).toString()) + kMargin, metrics.height()};
  }

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    option->text = index.data(kWithoutBlanksRole).toString();
  }
};

}  // namespace

class ListBox::LineModel : public QAbstractListModel {
 public:
  using QAbstractListModel::QAbstractListModel;

  int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : lines_.count(); }

  QVariant data(const QModelIndex& index, int role) const override {
    if (role == Qt::DisplayRole) return lines_.text(index.row());
    if (role == kWithoutBlanksRole) return lines_.textWithoutBlanks(index.row());
    return {};
  }

  void append(const TextLines& more) {
    if (more.count() == 0) return;
    beginInsertRows({}, lines_.count(), lines_.count() + more.count() - 1);
    lines_.append(more);
    endInsertRows();
  }

  void clear() {
    beginResetModel();
    lines_ = {};
    endResetModel();
  }

 private:
  TextLines lines_;
};

ListBox::ListBox(const QString& name, QWidget* parent) : QListView(parent), lines_(new LineModel(this)) {
  setObjectName(name);
  setFont(fixedPitchFont());
  setItemDelegate(new LineDelegate(this));
  setModel(lines_);
  setSelectionMode(ExtendedSelection);
  setEditTriggers(NoEditTriggers);
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

void ListBox::addItem(std::string_view line) {
  TextLines one;
  one.add(line);
  lines_->append(one);
}

void ListBox::addItems(const TextLines& lines) { lines_->append(lines); }

void ListBox::clear() { lines_->clear(); }

int ListBox::count() const { return lines_->rowCount(); }

QString ListBox::text(int row) const { return lines_->data(lines_->index(row), Qt::DisplayRole).toString(); }

QString ListBox::selectedText() const {
  QModelIndexList rows = selectionModel()->selectedRows();
  std::sort(rows.begin(), rows.end());
  QStringList lines;
  for (const QModelIndex& row : rows) lines << row.data(kWithoutBlanksRole).toString();
  return lines.join(QLatin1Char('\n'));
}

}  // namespace tavimor
