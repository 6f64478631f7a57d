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

/// The file that a link leads to, which need not exist, or the path itself where it is no link.
/// Errors: PathFileAccess for links that lead in a circle, a RunTimeError where the system does not tell.
std::string resolvedLink(const std::string& path);
PairPaths resolved(const PairPaths& pair);

}  // namespace tavimor
