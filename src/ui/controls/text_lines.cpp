#include "ui/controls/text_lines.h"

namespace tavimor {

void TextLines::add(std::string_view line) {
  const std::size_t length = line.find_last_not_of(' ') + 1;  // 0 for a line of blanks
  bytes_.append(line.data(), static_cast<qsizetype>(length));
  lines_.push_back({bytes_.size(), static_cast<int>(line.size() - length)});
}

QString TextLines::textWithoutBlanks(int row) const {
  const qsizetype first = row == 0 ? 0 : lines_[row - 1].end;
  return QString::fromUtf8(bytes_.constData() + first, lines_[row].end - first);
}

void TextLines::append(const TextLines& more) {
  const qsizetype behind = bytes_.size();
  bytes_ += more.bytes_;
  for (const Line& line : more.lines_) lines_.push_back({behind + line.end, line.blanks});
}

}  // namespace tavimor
