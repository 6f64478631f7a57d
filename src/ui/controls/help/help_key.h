#pragma once

#include <QObject>
#include <functional>

namespace tavimor {

/// F1 in any window that has a name of the program, "frmExport", calls a function with that name, which is that of its
/// page: whatever control has the focus, and while the window is disabled too. It works as long as the object lives.
class HelpKey : public QObject {
  Q_OBJECT

 public:
  explicit HelpKey(std::function<void(const QString& page)> help);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  std::function<void(const QString&)> help_;
};

}  // namespace tavimor
