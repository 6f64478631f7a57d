#pragma once

#include <QString>

namespace tavimor {

/// The objectName of element k of a control array: "txtLL(0)".
QString elementName(const char* array, int k);

}  // namespace tavimor
