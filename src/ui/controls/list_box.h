#pragma once

#include <QListWidget>

namespace tavimor {

/// A list of text lines in a fixed-pitch font, made for ten thousand of them. Lines can be selected and copied, by
/// Ctrl+A, Ctrl+C and from the context menu; blanks at a line's end are neither copied nor scrolled to.
class ListBox : public QListWidget {
  Q_OBJECT

 public:
  explicit ListBox(const QString& name, QWidget* parent = nullptr);

  /// The selected lines from top to bottom.
  QString selectedText() const;
};

}  // namespace tavimor
