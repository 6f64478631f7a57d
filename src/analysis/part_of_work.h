#pragma once

#include "analysis/analysis_options.h"

namespace tavimor {

/// The options for a part of some work, whose progress is that of the whole between two shares.
inline AnalysisOptions partOf(const AnalysisOptions& whole, double from, double to) {
  AnalysisOptions part = whole;
  if (whole.progress)
    part.progress = [tell = whole.progress, from, to](double share) { tell(from + share * (to - from)); };
  return part;
}

}  // namespace tavimor
