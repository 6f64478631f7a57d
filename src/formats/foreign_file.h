#pragma once

#include <string>

#include "runtime/failure.h"

namespace tavimor {

/// A file that a save would have replaced although it is not the same half of a problem. Nothing was written.
class ForeignFile : public Failure {
 public:
  enum class Wanted { Specification, Values };

  ForeignFile(std::string path, Wanted wanted);

  std::string heading() const override { return "Not saved"; }
  const char* what() const noexcept override;

 private:
  Wanted wanted_;
};

/// Makes sure that saving the problem `path` costs nobody another file: where there is a file at `path` it is the
/// specification of a problem, and where there is one at `path`.dat these are the values of one. What a file is its
/// first records tell; an empty one is nobody's loss.
/// Errors: ForeignFile; a RunTimeError for a file that cannot be read, since nobody knows then what it is.
void requireSameHalves(const std::string& path);

}  // namespace tavimor
