#pragma once

#include <QString>

namespace tavimor {

/// How the elements of a help text look, as a style sheet of the document. All sizes of text are relative to the
/// document's font, so that the text can be zoomed.
QString helpStyleSheet();

}  // namespace tavimor
