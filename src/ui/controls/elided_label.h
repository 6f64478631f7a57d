#pragma once

#include <QLabel>

namespace tavimor {

/// A label of one line for a text that may be longer than its place, a user's name for instance: what does not fit is
/// left out in the middle, and the tool tip shows the whole then. It asks for no more room than a text of usual length
/// needs. text() is the whole text.
class ElidedLabel : public QLabel {
  Q_OBJECT

 public:
  explicit ElidedLabel(const QString& text = {}, QWidget* parent = nullptr);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QString shownText() const;
};

}  // namespace tavimor
