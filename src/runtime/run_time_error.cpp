#include "runtime/run_time_error.h"

#include <cerrno>
#include <filesystem>
#include <utility>

#include "platform/files.h"

namespace tavimor {

namespace {

bool folderIsMissing(const std::string& path) {
  std::error_code ignored;
  const std::filesystem::path folder = nativePath(path).parent_path();
  return !folder.empty() && !std::filesystem::is_directory(folder, ignored);
}

}  // namespace

const char* description(ErrorNumber number) {
  switch (number) {
    case ErrorNumber::InvalidCall: return "Invalid procedure call or argument";
    case ErrorNumber::Overflow: return "Overflow";
    case ErrorNumber::OutOfMemory: return "Out of memory";
    case ErrorNumber::SubscriptOutOfRange: return "Subscript out of range";
    case ErrorNumber::DivisionByZero: return "Division by zero";
    case ErrorNumber::TypeMismatch: return "Type mismatch";
    case ErrorNumber::FileNotFound: return "File not found";
    case ErrorNumber::FileAlreadyOpen: return "File already open";
    case ErrorNumber::DeviceError: return "Device I/O error";
    case ErrorNumber::DiskFull: return "Disk full";
    case ErrorNumber::InputPastEnd: return "Input past end of file";
    case ErrorNumber::PermissionDenied: return "Permission denied";
    case ErrorNumber::PathFileAccess: return "Path/File access error";
    case ErrorNumber::PathNotFound: return "Path not found";
    case ErrorNumber::PrinterError: return "Printer error";
    case ErrorNumber::ScriptReported: return "A script error has been reported";
  }
  return "Application-defined or object-defined error";
}

RunTimeError::RunTimeError(ErrorNumber number, std::string path, std::string detail)
    : Failure(std::move(path), std::move(detail)), number_(number) {}

std::string RunTimeError::heading() const {
  return "Run-time error '" + std::to_string(static_cast<int>(number_)) + "'";
}

RunTimeError fileError(int systemError, const std::string& path) {
  switch (systemError) {
    case ENOENT:
    case ENOTDIR:
      return RunTimeError(folderIsMissing(path) ? ErrorNumber::PathNotFound : ErrorNumber::FileNotFound, path);
    case EACCES:
    case EPERM:
    case EROFS: return RunTimeError(ErrorNumber::PermissionDenied, path);
    case ENOSPC:
    case EFBIG:
#ifdef EDQUOT
    case EDQUOT:
#endif
      return RunTimeError(ErrorNumber::DiskFull, path);
    case EBUSY:
    case ETXTBSY: return RunTimeError(ErrorNumber::FileAlreadyOpen, path);
    case ENOMEM: return RunTimeError(ErrorNumber::OutOfMemory, path);
    case EIO: return RunTimeError(ErrorNumber::DeviceError, path);
    default: return RunTimeError(ErrorNumber::PathFileAccess, path);
  }
}

}  // namespace tavimor
