#pragma once

#include <string>
#include <string_view>

#include "formats/problem_reader.h"

namespace tavimor {

/// The whole problem with its fit, where it has one, as a JSON text: docs/problem-json.md describes it. A number
/// stands with as many digits (17 at most) as it takes to read the same bits back; infinities and NaN are the texts
/// "INF", "-INF" and "NAN".
/// Order: the function and the coefficients are nested arrays, the first variable outermost.
std::string problemJson(const Problem& problem, const Fit& fit);

/// The problem of a JSON text, the centres as number texts; `path` is the file that it came from, for errors.
/// Every number has the bits that problemJson was given.
/// Errors: a BadFile with the line where it is no JSON, or with the place of the item, "variables[1].degree", that is
/// not what stands there; no table is made that is larger than what the text holds. OutOfMemory.
StoredProblem problemFromJson(std::string_view text, const std::string& path);

/// The problem of a JSON file. Errors: a RunTimeError where the system refuses it, else as problemFromJson.
StoredProblem readProblemJson(const std::string& path);

}  // namespace tavimor
