#pragma once

#include <QString>

namespace tavimor {

/// How the elements of a help text look, as a style sheet of the document. All sizes of text are relative to the
/// document's font, so that the text can be zoomed. Its colours are made for text on a light or on a dark ground.
enum class Ground { Light, Dark };
QString helpStyleSheet(Ground ground);

}  // namespace tavimor
