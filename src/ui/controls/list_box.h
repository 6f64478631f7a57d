#pragma once

#include <QListView>
#include <string_view>

#include "ui/controls/text_lines.h"

namespace tavimor {

/// A list of text lines in a fixed-pitch font, made for half a million of them. Lines can be selected and copied, by
/// Ctrl+A, Ctrl+C and from the context menu; blanks at a line's end are neither copied nor scrolled to.
class ListBox : public QListView {
  Q_OBJECT

 public:
  explicit ListBox(const QString& name, QWidget* parent = nullptr);

  void addItem(std::string_view line);
  void addItems(const TextLines& lines);
  void clear();

  int count() const;
  QString text(int row) const;

  /// The selected lines from top to bottom.
  QString selectedText() const;

 private:
  class LineModel;

  LineModel* lines_;
};

}  // namespace tavimor
