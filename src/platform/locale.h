#pragma once

#include <span>
#include <string>

namespace tavimor {

/// The user's regional settings, as far as the program looks at them. On Windows these are the system's own calls, and
/// a change holds for the whole system until it is taken back.
///
/// Elsewhere a program can change no setting but its own. There the settings are what the environment says of
/// LC_NUMERIC (LC_ALL, else LC_NUMERIC, else LANG), and a change holds for this process and for what it starts.

using LocaleId = unsigned long;

enum class LocaleItem { DecimalSeparator = 14 };

/// The locale of the user's settings.
LocaleId GetUserDefaultLCID();

/// Copies the item's text and a NUL into the buffer; an empty buffer only asks for the length.
/// Returns the number of characters, the NUL included. Errors: 0, for a buffer that is too short above all.
int GetLocaleInfo(LocaleId locale, LocaleItem item, std::span<char> buffer);

/// Errors: false, and nothing has changed. Outside Windows only two texts can be set: ".", and afterwards the one that
/// the environment had before.
bool SetLocaleInfo(LocaleId locale, LocaleItem item, const std::string& text);

}  // namespace tavimor
