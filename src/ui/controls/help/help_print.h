#pragma once

#include <QTextDocument>

namespace tavimor {

/// Asks for a printer and prints the document under this title, in a size of text that suits paper whatever it is
/// zoomed to on screen.
void printHelp(const QTextDocument& document, const QString& title);

}  // namespace tavimor
