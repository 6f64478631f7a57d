#pragma once

#include <cstdint>

namespace tavimor {

/// The program's whole number: 32 bits, signed. Counts are kept as last indices of this type.
using Long = std::int32_t;

/// Rounds to the nearest whole number, halves to the even one: 2.5 gives 2, 3.5 gives 4.
/// Errors: Overflow for a value outside the range of Long, and for a NaN.
Long toLong(double value);

/// The product or the sum, or the run-time error Overflow where a Long cannot hold it.
Long multiplyLongs(Long a, Long b);
Long addLongs(Long a, Long b);

}  // namespace tavimor
