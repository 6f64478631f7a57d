#include "ui/controls/user_settings.h"

namespace tavimor {

QSettings userSettings() {
  return QSettings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("tavimor"), QStringLiteral("windows"));
}

}  // namespace tavimor
