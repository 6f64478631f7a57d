#pragma once

#include <gtest/gtest.h>

#include "runtime/bad_file.h"
#include "runtime/run_time_error.h"

namespace tavimor::test {

/// The action ends in this run-time error.
template <class Action>
void expectError(ErrorNumber number, Action action) {
  try {
    action();
    ADD_FAILURE() << "no error, expected: " << description(number);
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.number(), number) << error.report() << ' ' << error.path();
  }
}

/// The action ends in this complaint about a file: "line 3: expected a degree (a number), found nothing".
template <class Action>
void expectBadFile(const std::string& reason, Action action) {
  try {
    action();
    ADD_FAILURE() << "no error, expected: " << reason;
  } catch (const BadFile& error) {
    EXPECT_EQ(error.report(), reason);
  }
}

}  // namespace tavimor::test
