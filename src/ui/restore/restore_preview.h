#pragma once

#include <QString>

#include "formats/restore/kept_problem.h"

namespace tavimor {

/// The first lines of what a report of the problem would say: its specifications, its figures where it is fitted, and
/// the beginning of the function; or the names, where those are all that was typed.
QString previewOf(const SessionProblem& kept);

}  // namespace tavimor
