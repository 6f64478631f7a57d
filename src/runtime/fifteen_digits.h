#pragma once

#include <cstddef>
#include <cstdint>

namespace tavimor {

/// A number rounded to 15 significant digits: digits * 10^(exponent - 14), 10^14 <= digits < 10^15.
struct FifteenDigits {
  std::uint64_t digits;
  int exponent;
};

/// The magnitudes whose digits are made here: from 1E-4 on, below 15 nines.
inline constexpr double kLeastMagnitude = 1e-4, kMostMagnitude = 999999999999999.0;

/// Rounded correctly, halves to the even digit. For kLeastMagnitude <= magnitude < kMostMagnitude.
/// The product with a power of ten is exact as a sum of two doubles (Dekker, A floating-point technique for extending
/// the available precision, Numer. Math. 18, 1971), which leaves nothing to guess in rounding it.
FifteenDigits fifteenDigits(double magnitude);

/// Writes them with a point where one is needed, and without zeros at either end: "12.5", ".00025", "300". Returns the
/// end. There must be room for kRoomForDecimal characters, which may be written over.
inline constexpr std::size_t kRoomForDecimal = 32;
char* putDecimal(FifteenDigits number, char* to);

}  // namespace tavimor
