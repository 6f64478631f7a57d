#pragma once

#include <QTreeWidget>
#include <vector>

#include "ui/controls/help/help_headings.h"

namespace tavimor {

/// The contents list of a help text: a tree of its pages and their sections, in which the one in view is marked.
class HelpContents : public QTreeWidget {
  Q_OBJECT

 public:
  explicit HelpContents(const QString& name);

  void list(const std::vector<HelpHeading>& headings);

  /// Marks the last entry that begins at or before this position of the text.
  void mark(int position);

 signals:
  /// By a click, or by Enter on the marked entry.
  void chosen(const QString& anchor);

 private:
  struct Entry {
    int position;
    QTreeWidgetItem* item;
  };

  void choose(QTreeWidgetItem* item);

  std::vector<Entry> entries_;
};

}  // namespace tavimor
