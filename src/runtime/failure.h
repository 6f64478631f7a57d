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

  /// What kind of failure it is, or where in the file: "Run-time error '61'", "line 3". what() says what happened.
  virtual std::string heading() const = 0;

  /// Both in one line, the form in which every front end reports it: "Run-time error '61': Disk full".
  std::string report() const { return heading() + ": " + what(); }

 protected:
  explicit Failure(std::string path) : path_(std::move(path)) {}

 private:
  std::string path_;
};

}  // namespace tavimor
