#include "ui/controls/control_array.h"

namespace tavimor {

QString elementName(const char* array, int k) { return QStringLiteral("%1(%2)").arg(QLatin1String(array)).arg(k); }

}  // namespace tavimor
