#pragma once

#include <QTextDocument>
#include <QWidget>

namespace tavimor {

/// Asks for a printer and prints the document, in a size of text that suits paper whatever it is zoomed to on screen.
void printHelp(const QTextDocument& document, QWidget& parent);

}  // namespace tavimor
