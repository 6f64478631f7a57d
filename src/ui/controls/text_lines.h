#pragma once

#include <QByteArray>
#include <QString>
#include <string_view>
#include <vector>

namespace tavimor {

/// Lines of text, made for half a million of them: in a byte for each plain character, and a number for all blanks at a
/// line's end.
class TextLines {
 public:
  void add(std::string_view line);

  int count() const { return static_cast<int>(lines_.size()); }
  QString text(int row) const { return textWithoutBlanks(row) + QString(lines_[row].blanks, QLatin1Char(' ')); }

  /// Without the blanks at the line's end.
  QString textWithoutBlanks(int row) const;

  /// Adds all lines of another list.
  void append(const TextLines& more);

 private:
  struct Line {
    qsizetype end;  // behind its last byte
    int blanks;
  };

  QByteArray bytes_;  // UTF-8
  std::vector<Line> lines_;
};

}  // namespace tavimor
