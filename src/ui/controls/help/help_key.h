#pragma once

#include <QObject>
#include <functional>

namespace tavimor {

/// F1 in any form, the help window excepted, calls a function with the form's name: whatever control has the focus,
/// and while the form is disabled too. It works as long as the object lives.
class HelpKey : public QObject {
  Q_OBJECT

 public:
  explicit HelpKey(std::function<void(const QString& form)> help);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  std::function<void(const QString&)> help_;
};

}  // namespace tavimor
