#pragma once

#include <QString>
#include <QTextDocument>
#include <vector>

namespace tavimor {

/// A heading of a help text: 1 begins a page, 2 a section of it.
struct HelpHeading {
  int level;
  QString text;
  QString anchor;  // empty where it has none
  int position;    // of its first character in the document
};

/// The HTML text with an anchor in every heading that is listed, beside the one that it may have already, so that it
/// can be gone to. This is done before the text is shown: a text browser that is laying out a long document shows parts
/// of it empty when the document is changed meanwhile.
QString withHeadingAnchors(const QString& html);

/// The headings of levels 1 and 2 in the order of the text.
std::vector<HelpHeading> readHeadings(const QTextDocument& document);

/// Where an anchor stands in the document; 0 where there is no such anchor.
int anchorPosition(const QTextDocument& document, const QString& anchor);

}  // namespace tavimor
