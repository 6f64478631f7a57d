#include "runtime/run_time_error.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <string>

#include "support/temporary_folder.h"

namespace tavimor {
namespace {

TEST(RunTimeError, ReportsItsNumberAndDescription) {
  const auto report = [](int number) { return RunTimeError(static_cast<ErrorNumber>(number)).report(); };
  EXPECT_EQ(report(5), "Run-time error '5': Invalid procedure call or argument");
  EXPECT_EQ(report(6), "Run-time error '6': Overflow");
  EXPECT_EQ(report(7), "Run-time error '7': Out of memory");
  EXPECT_EQ(report(9), "Run-time error '9': Subscript out of range");
  EXPECT_EQ(report(11), "Run-time error '11': Division by zero");
  EXPECT_EQ(report(13), "Run-time error '13': Type mismatch");
  EXPECT_EQ(report(53), "Run-time error '53': File not found");
  EXPECT_EQ(report(55), "Run-time error '55': File already open");
  EXPECT_EQ(report(57), "Run-time error '57': Device I/O error");
  EXPECT_EQ(report(61), "Run-time error '61': Disk full");
  EXPECT_EQ(report(62), "Run-time error '62': Input past end of file");
  EXPECT_EQ(report(70), "Run-time error '70': Permission denied");
  EXPECT_EQ(report(75), "Run-time error '75': Path/File access error");
  EXPECT_EQ(report(76), "Run-time error '76': Path not found");
  EXPECT_EQ(report(482), "Run-time error '482': Printer error");
}

TEST(RunTimeError, ReportsItsDetailInParentheses) {
  const RunTimeError error(ErrorNumber::DivisionByZero, {}, "variable \"x\" has a single value");
  EXPECT_STREQ(error.what(), "Division by zero");
  EXPECT_EQ(error.report(), "Run-time error '11': Division by zero (variable \"x\" has a single value)");
}

TEST(RunTimeError, AScriptReportsUnderItsOwnNumber) {
  EXPECT_EQ(static_cast<unsigned>(ErrorNumber::ScriptReported), 0x80020101u);
}

TEST(RunTimeError, AFileErrorCarriesThePath) {
  const RunTimeError error = fileError(EACCES, "here/problem");
  EXPECT_EQ(error.path(), "here/problem");
  EXPECT_STREQ(error.what(), "Permission denied");
}

using FileErrors = test::FolderTest;

TEST_F(FileErrors, WhatTheSystemSaysHasANumber) {
  const std::string file = folder / "problem";
  EXPECT_EQ(fileError(ENOENT, file).number(), ErrorNumber::FileNotFound);
  EXPECT_EQ(fileError(ENOENT, folder / "no/problem").number(), ErrorNumber::PathNotFound);
  EXPECT_EQ(fileError(ENOENT, "a-problem-beside").number(), ErrorNumber::FileNotFound);
  EXPECT_EQ(fileError(EACCES, file).number(), ErrorNumber::PermissionDenied);
  EXPECT_EQ(fileError(EPERM, file).number(), ErrorNumber::PermissionDenied);
  EXPECT_EQ(fileError(EROFS, file).number(), ErrorNumber::PermissionDenied);
  EXPECT_EQ(fileError(ENOSPC, file).number(), ErrorNumber::DiskFull);
  EXPECT_EQ(fileError(EFBIG, file).number(), ErrorNumber::DiskFull);
  EXPECT_EQ(fileError(EBUSY, file).number(), ErrorNumber::FileAlreadyOpen);
  EXPECT_EQ(fileError(ENOMEM, file).number(), ErrorNumber::OutOfMemory);
  EXPECT_EQ(fileError(EIO, file).number(), ErrorNumber::DeviceError);
  EXPECT_EQ(fileError(EISDIR, file).number(), ErrorNumber::PathFileAccess);
}

}  // namespace
}  // namespace tavimor
