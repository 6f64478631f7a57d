#pragma once

#include <gmock/gmock.h>

#include <initializer_list>
#include <string>
#include <vector>

#include "support/files.h"
#include "support/process.h"
#include "support/temporary_folder.h"

namespace tavimor::test {

/// Runs the program.
inline Outcome tavimorCli(const std::vector<std::string>& arguments, const std::string& input = {}) {
  return runToEnd(TAVIMOR_CLI, arguments, input);
}

/// The lines, each with an LF.
inline std::string text(const std::vector<std::string>& lines) {
  std::string joined;
  for (const std::string& line : lines) joined += line + '\n';
  return joined;
}

/// Lines as a problem file has them, each with CR LF.
inline std::string fileText(std::initializer_list<std::string> lines) {
  std::string joined;
  for (const std::string& line : lines) joined += line + "\r\n";
  return joined;
}

/// Tests of commands, with problems of their own.
class CommandTest : public FolderTest {
 protected:
  /// Writes the pair and returns its path.
  std::string writePair(const std::string& name, const std::string& specification, const std::string& values) {
    writeBytes(folder / name, specification);
    writeBytes(folder / (name + ".dat"), values);
    return folder / name;
  }

  /// One variable x with the values -1, 0, 1 and a function of 3 + 2 x.
  std::string line() {
    return writePair("line", fileText({" 0 ", R"("x",-1,1,0,#TRUE#,0,1)", "#FALSE#"}),
                     fileText({" 0 ", " 2 ", "#FALSE#", "-1 ", " 0 ", " 1 ", " 1 ", " 3 ", " 5 "}));
  }

  /// One variable with the value 1 twice, which carries no straight line.
  std::string singular() {
    return writePair("singular", fileText({" 0 ", R"("x",1,1,0,#TRUE#,0,1)", "#FALSE#"}),
                     fileText({" 0 ", " 1 ", "#FALSE#", " 1 ", " 1 ", " 5 ", " 6 "}));
  }

  /// One variable with two values and degree 2.
  std::string tooHighDegree() {
    return writePair("too-high", fileText({" 0 ", R"("speed",1,2,.3,#TRUE#,0,2)", "#FALSE#"}),
                     fileText({" 0 ", " 1 ", "#FALSE#", " 1 ", " 2 ", " 5 ", " 6 "}));
  }
};

}  // namespace tavimor::test
