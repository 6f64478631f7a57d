#include "ui/controls/help/help_headings.h"

#include <QRegularExpression>
#include <QTextBlock>

namespace tavimor {

namespace {

constexpr int kLevels = 2;

QString anchorOf(const QTextBlock& block) {
  const QStringList names = block.begin().fragment().charFormat().anchorNames();
  return names.isEmpty() ? QString() : names.constLast();
}

}  // namespace

QString withHeadingAnchors(const QString& html) {
  static const QRegularExpression heading(QStringLiteral("<h[12]\\b[^>]*>"), QRegularExpression::CaseInsensitiveOption);
  QString result;
  qsizetype taken = 0;
  for (auto found = heading.globalMatch(html); found.hasNext();) {
    const qsizetype end = found.next().capturedEnd();
    result += html.mid(taken, end - taken) + QStringLiteral("<a name=\"heading-%1\"></a>").arg(end);
    taken = end;
  }
  return result + html.mid(taken);
}

std::vector<HelpHeading> readHeadings(const QTextDocument& document) {
  std::vector<HelpHeading> headings;
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
    const int level = block.blockFormat().headingLevel();
    if (level < 1 || level > kLevels || block.text().isEmpty()) continue;
    headings.push_back({level, block.text(), anchorOf(block), block.position()});
  }
  return headings;
}

int anchorPosition(const QTextDocument& document, const QString& anchor) {
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
    for (auto part = block.begin(); !part.atEnd(); ++part)
      if (part.fragment().charFormat().anchorNames().contains(anchor)) return part.fragment().position();
  return 0;
}

}  // namespace tavimor
