#pragma once

#include <stdexcept>
#include <string>
#include <vector>

namespace tavimor {

/// What the command line asks of `tavimor --picture`.
struct PictureRequest {
  std::string kind;  // "section", "map", "residuals", "degrees"
  std::string problem;
  std::string output;           // .png, .svg or .pdf
  std::string x;                // the name of a variable; empty: the first one that is not held
  std::vector<std::string> at;  // "NAME=VALUE"
};

/// A request that no problem can satisfy, or not this one.
struct WrongRequest : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// A picture that has nothing to show; what() says why, in a sentence.
struct NothingToShow : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// Makes the picture and writes its file, without a window or a display. Errors: WrongRequest, NothingToShow; a
/// Failure. No file is written then.
void makePicture(const PictureRequest& request);

}  // namespace tavimor
