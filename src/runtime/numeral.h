#pragma once

namespace tavimor {

/// What stands at the beginning of a text: the double nearest to the numeral, and the place behind its last character.
struct Numeral {
  double value;
  const char* end;
};

/// Reads the longest numeral that begins at `first`: an optional sign; digits with at most one point among them, one
/// digit at least; an optional exponent "E" or "e" with an optional sign and its digits. "INF" and "NAN", in capitals
/// and as whole words, are numerals too, since numberText writes them.
///
/// | text        | value      | end behind |
/// |-------------|------------|------------|
/// | "1.5$abc"   | 1.5        | "1.5"      |
/// | "1E"        | 1          | "1"        |
/// | ".5", "5."  | 0.5, 5     | all        |
/// | "1E-400"    | 0          | all        |
/// | "abc", "."  | 0          | nothing    |
/// | "1E400"     | 0          | nothing    |
///
/// No blank is skipped. The value is the correctly rounded one, for any number of digits. A number that is too large
/// for a double is none. "1.79769313486232E+308", which numberText writes for the largest double, reads back as it.
Numeral scanNumeral(const char* first, const char* last);

}  // namespace tavimor
