#include "runtime/long.h"

#include <cmath>
#include <limits>

#include "runtime/run_time_error.h"

namespace tavimor {

namespace {

Long narrowed(std::int64_t wide) {
  if (wide < std::numeric_limits<Long>::min() || wide > std::numeric_limits<Long>::max())
    throw RunTimeError(ErrorNumber::Overflow);
  return static_cast<Long>(wide);
}

}  // namespace

Long toLong(double value) {
  const double whole = std::nearbyint(value);  // the default rounding mode takes halves to even
  const bool holds = whole >= std::numeric_limits<Long>::min() && whole <= std::numeric_limits<Long>::max();
  if (!holds) throw RunTimeError(ErrorNumber::Overflow);
  return static_cast<Long>(whole);
}

Long multiplyLongs(Long a, Long b) { return narrowed(std::int64_t{a} * b); }

Long addLongs(Long a, Long b) { return narrowed(std::int64_t{a} + b); }

}  // namespace tavimor
