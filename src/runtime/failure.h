#pragma once

#include <exception>
#include <string>
#include <utility>

namespace tavimor {

/// A failure that a person is told of. The window and the command line each catch this base in one place.
class Failure : public std::exception {
 public:
  /// The file or the printer that it is about; empty where there is none.
  const std::string& path() const { return path_; }

  /// What the user can know of it beyond what() and the path: "variable "x" has a single value". Empty where there is
  /// nothing.
  const std::string& detail() const { return detail_; }

  /// What kind of failure it is, or where in the file: "Run-time error '61'", "line 3". what() says what happened.
  virtual std::string heading() const = 0;

  /// All but the path in one line, the form in which every front end reports it: "Run-time error '61': Disk full", with
  /// the detail behind it in parentheses.
  std::string report() const {
    const std::string text = heading() + ": " + what();
    return detail_.empty() ? text : text + " (" + detail_ + ')';
  }

 protected:
  explicit Failure(std::string path, std::string detail = {}) : path_(std::move(path)), detail_(std::move(detail)) {}

 private:
  std::string path_, detail_;
};

}  // namespace tavimor
