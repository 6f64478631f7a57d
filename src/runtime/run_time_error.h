#pragma once

#include <string>

#include "runtime/failure.h"

namespace tavimor {

/// The numbers of the run-time errors that the program raises. A user meets them in the error report.
enum class ErrorNumber {
  InvalidCall = 5,
  Overflow = 6,
  OutOfMemory = 7,
  SubscriptOutOfRange = 9,
  DivisionByZero = 11,
  TypeMismatch = 13,
  FileNotFound = 53,
  FileAlreadyOpen = 55,
  DeviceError = 57,
  DiskFull = 61,
  InputPastEnd = 62,
  PermissionDenied = 70,
  PathFileAccess = 75,
  PathNotFound = 76,
  PrinterError = 482,
  ScriptReported = -2147352319,  // 0x80020101
};

/// The text that goes with a number, for instance "Subscript out of range" with 9.
const char* description(ErrorNumber number);

/// A run-time error: its number, its description and, for an error of a file or a printer, its path or name.
class RunTimeError : public Failure {
 public:
  /// `detail` is what a user can know beyond the description.
  explicit RunTimeError(ErrorNumber number, std::string path = {}, std::string detail = {});

  ErrorNumber number() const { return number_; }
  const char* what() const noexcept override { return description(number_); }

  /// "Run-time error 'N'"
  std::string heading() const override;

 private:
  ErrorNumber number_;
};

/// The run-time error for the value that `errno` had after a failed operation on `path`.
RunTimeError fileError(int systemError, const std::string& path);

}  // namespace tavimor
