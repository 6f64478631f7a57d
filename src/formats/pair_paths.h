#pragma once

#include <string>

namespace tavimor {

/// The two files of a problem.
struct PairPaths {
  std::string specification;
  std::string values;

  bool operator==(const PairPaths&) const = default;
};

/// `path` itself and `path` with ".dat" appended: where a problem is written.
PairPaths pairPaths(const std::string& path);

/// The files that links lead to, which need not exist, or the paths themselves where they are no links.
/// Errors: PathFileAccess for links that lead in a circle, a RunTimeError where the system does not tell.
PairPaths resolved(const PairPaths& pair);

}  // namespace tavimor
