#pragma once

#include <QString>

namespace tavimor {

/// The title of every message box that has none of its own.
inline constexpr char kTitle[] = "Tavimor";

/// Shows a text and waits for OK. The text is taken as it stands, never as markup.
void showWarning(const QString& text);

enum class Answer { Yes, No, Cancel };

/// Asks a question that has No as the answer of Enter and Escape.
Answer ask(const QString& question);

/// Asks under the sign of a critical message. Yes is the answer of Enter, Cancel that of Escape and of the title bar.
/// Carriage returns end lines.
Answer askCritical(const QString& question, const QString& title);

}  // namespace tavimor
