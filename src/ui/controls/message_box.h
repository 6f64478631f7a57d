#pragma once

#include <QString>

namespace tavimor {

/// The title of every message box that has none of its own.
inline constexpr char kTitle[] = "Tavimor";

/// Shows a text and waits for OK. The text is taken as it stands, never as markup.
void showWarning(const QString& text);

enum class Answer { Yes, No };

/// Asks a question that has No as the answer of Enter and Escape.
Answer ask(const QString& question);

}  // namespace tavimor
