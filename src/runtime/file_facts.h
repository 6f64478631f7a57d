#pragma once

#include <string>

#include "platform/file_query.h"

namespace tavimor {

/// What stands at a path; that nothing does is an answer as well.
/// Errors: a RunTimeError where the system does not tell, for nobody may take that for an answer.
FileFacts factsOf(const std::string& path, LastLink lastLink = LastLink::Keep);

}  // namespace tavimor
