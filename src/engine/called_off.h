#pragma once

#include <algorithm>
#include <cstddef>

#include "engine/fit_options.h"

namespace tavimor {

/// Ends a fit that was called off. Thrown inside the engine only: for the caller it is an outcome.
struct CalledOff {};

inline void endIfCalledOff(const FitOptions& options) {
  if (options.isCalledOff && options.isCalledOff()) throw CalledOff();
}

/// How many of a series of equal pieces of work to do between two looks at whether the fit is called off, `work` being
/// the multiplications and additions of one: a small part of a second's, `least` at least and `most` at most.
inline std::size_t piecesBetweenLooks(double work, std::size_t least, std::size_t most) {
  constexpr double worthALook = 1e8;
  return static_cast<std::size_t>(
      std::clamp(worthALook / std::max(work, 1.0), static_cast<double>(least), static_cast<double>(most)));
}

}  // namespace tavimor
