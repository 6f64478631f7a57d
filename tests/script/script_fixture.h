#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "runtime/run_time_error.h"
#include "script/ScriptHost.h"

namespace tavimor {

/// An engine as the main window sets it up. A script's value is read by way of a field of the published object.
class ScriptTest : public ::testing::Test {
 protected:
  ScriptTest() {
    host.AddObject("sh", sh, AddMembers::Yes);
    host.ExecuteStatement("halfpi = Atn(1) * 2");
    host.ExecuteStatement("pi = Atn(1) * 4");
    host.ExecuteStatement("e = Exp(1)");
    host.setErrorHandler([this] { told.push_back(host.Error().Description); });
  }

  /// The value of an expression; pi gives up its own for it.
  double value(const std::string& expression) {
    const double before = sh.pi;
    host.ExecuteStatement("assigned_by_the_test = " + expression);
    host.ExecuteStatement("pi = assigned_by_the_test");
    const double result = sh.pi;
    sh.pi = before;
    return result;
  }

  /// The description of a statement's error; empty where the statement runs.
  std::string errorOf(const std::string& statement) {
    try {
      host.ExecuteStatement(statement);
      return {};
    } catch (const RunTimeError& error) {
      EXPECT_EQ(error.number(), ErrorNumber::ScriptReported);
      return host.Error().Description;
    }
  }

  Long windowIerr = 0;
  Class1 sh{windowIerr};
  ScriptHost host;
  std::vector<std::string> told;
};

}  // namespace tavimor
