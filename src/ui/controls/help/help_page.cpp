#include "ui/controls/help/help_page.h"

#include <QEvent>
#include <QScrollBar>
#include <algorithm>

#include "ui/controls/fonts.h"
#include "ui/controls/help/help_headings.h"
#include "ui/controls/help/help_style.h"

namespace tavimor {

namespace {

constexpr int kMargin = 20;
constexpr int kIndent = 28;
constexpr int kCharactersPerLine = 96;

QPalette withSteadyMarks(QPalette palette) {
  // A place that was found stays marked in full colour while the search field has the focus.
  palette.setColor(QPalette::Inactive, QPalette::Highlight, palette.color(QPalette::Active, QPalette::Highlight));
  palette.setColor(QPalette::Inactive, QPalette::HighlightedText,
                   palette.color(QPalette::Active, QPalette::HighlightedText));
  return palette;
}

Ground groundOf(const QPalette& palette) {
  return palette.color(QPalette::Base).lightness() < palette.color(QPalette::Text).lightness() ? Ground::Dark
                                                                                               : Ground::Light;
}

}  // namespace

HelpPage::HelpPage(const QString& name) {
  setObjectName(name);
  setAccessibleName(QStringLiteral("Help text"));
  setPalette(withSteadyMarks(palette()));
  setOpenExternalLinks(true);
  setLineWrapMode(FixedPixelWidth);
  document()->setDocumentMargin(kMargin);
  document()->setIndentWidth(kIndent);
  document()->setDefaultStyleSheet(helpStyleSheet(groundOf(palette())));
  resetZoom();
}

// Half a line down: the top line may be cut off by the edge.
int HelpPage::topPosition() const { return cursorForPosition({0, fontMetrics().height() / 2}).position(); }

bool HelpPage::isInView(const QTextCursor& cursor) const { return viewport()->rect().intersects(cursorRect(cursor)); }

void HelpPage::moveCaret(int position) {
  QTextCursor cursor(document());
  cursor.setPosition(position);
  setTextCursor(cursor);
}

void HelpPage::resetZoom() { setFont(verdanaFont()); }

// A copy of a document, which is what is printed, no longer knows where its pictures are.
QString HelpPage::withWholePaths(QString html) const {
  const QString folder = source().resolved(QUrl(QStringLiteral("."))).toString(QUrl::FullyEncoded);
  return html.replace(QStringLiteral("<img src=\""), QStringLiteral("<img src=\"") + folder);
}

std::unique_ptr<QTextDocument> HelpPage::printedDocument() {
  auto printed = std::make_unique<QTextDocument>();
  printed->setDefaultFont(document()->defaultFont());
  printed->setIndentWidth(kIndent);
  printed->setDefaultStyleSheet(helpStyleSheet(Ground::Light));
  printed->setHtml(withWholePaths(loadResource(QTextDocument::HtmlResource, source()).toString()));
  return printed;
}

QVariant HelpPage::loadResource(int type, const QUrl& name) {
  QVariant content = QTextBrowser::loadResource(type, name);
  if (type != QTextDocument::HtmlResource) return content;
  return withHeadingAnchors(QString::fromUtf8(content.toByteArray()));
}

void HelpPage::doSetSource(const QUrl& name, QTextDocument::ResourceType type) {
  QTextBrowser::doSetSource(name, type);
  layOutToTheEnd();
}

void HelpPage::resizeEvent(QResizeEvent* event) {
  const int top = topPosition();
  QTextBrowser::resizeEvent(event);
  limitLineWidth();
  scrollTo(top);
}

void HelpPage::changeEvent(QEvent* event) {
  const int top = topPosition();
  QTextBrowser::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) followPalette();
  if (event->type() != QEvent::FontChange) return;
  limitLineWidth();
  scrollTo(top);
}

// The style sheet acts on a text that is read after it.
void HelpPage::followPalette() {
  const QString style = helpStyleSheet(groundOf(palette()));
  if (style == document()->defaultStyleSheet()) return;
  const int top = topPosition();
  document()->setDefaultStyleSheet(style);
  reload();
  scrollTo(top);
}

void HelpPage::limitLineWidth() {
  const int comfortable = 2 * kMargin + kCharactersPerLine * fontMetrics().averageCharWidth();
  setLineWrapColumnOrWidth(std::min(viewport()->width(), comfortable));
  layOutToTheEnd();
}

// Otherwise this is done bit by bit, and the scroll bar has not its whole range yet.
void HelpPage::layOutToTheEnd() { document()->size(); }

// What one reads stays in view when the lines break elsewhere.
void HelpPage::scrollTo(int position) {
  QScrollBar& bar = *verticalScrollBar();
  if (bar.value() == 0) return;
  QTextCursor cursor(document());
  cursor.setPosition(position);
  bar.setValue(bar.value() + cursorRect(cursor).top());
}

}  // namespace tavimor
