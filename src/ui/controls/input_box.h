#pragma once

#include <QString>
#include <string>

namespace tavimor {

/// Asks for a line of text and returns it; empty where the user calls it off.
std::string InputBox(const QString& prompt, const QString& title);

}  // namespace tavimor
