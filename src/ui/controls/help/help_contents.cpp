#include "ui/controls/help/help_contents.h"

#include <algorithm>

#include "ui/controls/fonts.h"

namespace tavimor {

namespace {

constexpr int kAnchor = Qt::UserRole;

}  // namespace

HelpContents::HelpContents(const QString& name) {
  setObjectName(name);
  setFont(sansSerifFont());
  setAccessibleName(QStringLiteral("Contents"));
  setHeaderHidden(true);
  setUniformRowHeights(true);
  connect(this, &QTreeWidget::itemClicked, this, &HelpContents::choose);
  connect(this, &QTreeWidget::itemActivated, this, &HelpContents::choose);
}

void HelpContents::list(const std::vector<HelpHeading>& headings) {
  clear();
  entries_.clear();
  QTreeWidgetItem* page = nullptr;
  for (const HelpHeading& heading : headings) {
    auto* item = heading.level > 1 && page != nullptr ? new QTreeWidgetItem(page) : new QTreeWidgetItem(this);
    if (heading.level == 1) page = item;
    item->setText(0, heading.text);
    item->setToolTip(0, heading.text);
    item->setData(0, kAnchor, heading.anchor);
    entries_.push_back({heading.position, item});
  }
}

void HelpContents::mark(int position) {
  const auto next = std::upper_bound(entries_.begin(), entries_.end(), position,
                                     [](int place, const Entry& entry) { return place < entry.position; });
  if (next != entries_.begin()) setCurrentItem(std::prev(next)->item);
}

void HelpContents::choose(QTreeWidgetItem* item) {
  item->setExpanded(true);
  emit chosen(item->data(0, kAnchor).toString());
}

}  // namespace tavimor
