#pragma once

#include <QTextBrowser>
#include <memory>

namespace tavimor {

/// Shows the text of a help file, an HTML document in UTF-8: in the colours of the desktop, light or dark, in lines
/// that are never longer than one reads with ease. Links lead within the text, or to the web browser.
class HelpPage : public QTextBrowser {
  Q_OBJECT

 public:
  explicit HelpPage(const QString& name);

  /// Where the first line in view begins in the text.
  int topPosition() const;

  bool isInView(const QTextCursor& cursor) const;

  /// Moves the caret from the link that led here to the page that it led to: a search goes on from there, and Forward
  /// finds the page again rather than the link.
  void moveCaret(int position);

  void resetZoom();

  /// The text as it goes to paper, in the colours for a light ground.
  std::unique_ptr<QTextDocument> printedDocument();

  QVariant loadResource(int type, const QUrl& name) override;

 protected:
  void doSetSource(const QUrl& name, QTextDocument::ResourceType type) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  QString withWholePaths(QString html) const;
  void followPalette();
  void limitLineWidth();
  void layOutToTheEnd();
  void scrollTo(int position);
};

}  // namespace tavimor
