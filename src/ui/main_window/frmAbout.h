#pragma once

#include <QStringList>

#include "ui/controls/form.h"

namespace tavimor {

/// The window that says what the program is, at start-up and on demand: plain lines of text. A click unloads it, and so
/// do Escape and Enter.
class frmAbout : public Form {
  Q_OBJECT

 public:
  frmAbout();

  /// Adds a line below those that stand there.
  void Print(const QString& line);

  const QStringList& lines() const { return lines_; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Form_Click();

  QStringList lines_;
};

/// The maker's address on the web.
inline constexpr char kWebAddress[] = "www.tavimor.example";

/// Shows the About window with its lines, or brings the one that is open to the front.
frmAbout& ShowAbout();

}  // namespace tavimor
