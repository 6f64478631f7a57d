#pragma once

#include "analysis/analysis.h"
#include "cli/options.h"

namespace tavimor {

/// The problem of that path with what is listed for it: the results that it holds, else those of a fit made now, which
/// is also made where options ask for other degrees or centres. Errors: those of reading; UsageError.
ListedProblem listedProblem(const std::string& path, const CommandOptions& options);

/// An analysis as a JSON object: see docs/analysis-json.md.
std::string analysisJson(const std::string& path, const Analysis& analysis);

}  // namespace tavimor
