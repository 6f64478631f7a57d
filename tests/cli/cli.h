#pragma once

#include <gmock/gmock.h>

#include <initializer_list>
#include <string>
#include <vector>

#include "support/files.h"
#ifdef _WIN32
#include "support/windows_process.h"
#else
#include "support/process.h"
#endif
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

/// The lines as the program prints them: without the blanks at their ends, each with an LF.
inline std::string printed(std::vector<std::string> lines) {
  for (std::string& line : lines) line.erase(line.find_last_not_of(' ') + 1);
  return text(lines);
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
#ifndef _WIN32
  /// Runs the program with a standard output that has no room.
  Outcome runOnFullDevice(const std::vector<std::string>& arguments, const std::string& input = {}) {
    Pipe in, err;
    if (write(in.writing.number(), input.data(), input.size()) < 0) ADD_FAILURE();
    in.writing.close();
    const Descriptor full(open("/dev/full", O_WRONLY | O_CLOEXEC));
    Process process(in.reading.number(), full.number(), err.writing.number(),
                    [&] { return execute(TAVIMOR_CLI, arguments); });
    err.writing.close();
    const int exitCode = process.wait();
    return {exitCode, "", readAll(err.reading)};
  }
#endif

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

  /// One variable with a single value, which has no step.
  std::string singleValue() {
    return writePair("single", fileText({" 0 ", R"("x",1,1,0,#TRUE#,0,0)", "#FALSE#"}),
                     fileText({" 0 ", " 0 ", "#FALSE#", " 5 "}));
  }

  /// One variable with a stored fit whose coefficient of x is a NaN.
  std::string notFinite() {
    return writePair("not-finite", fileText({" 0 ", R"("x",0,1,0,#TRUE#,0,1)", "#TRUE#", " 100 ", " NAN "}),
                     fileText({" 0 ", " 1 ", "#FALSE#", " 0 ", " 1 ", " 5 ", " 6 ", "2,1,0,0,5.5,5.5"}));
  }

  /// One variable with two values and degree 2.
  std::string tooHighDegree() {
    return writePair("too-high", fileText({" 0 ", R"("speed",1,2,.3,#TRUE#,0,2)", "#FALSE#"}),
                     fileText({" 0 ", " 1 ", "#FALSE#", " 1 ", " 2 ", " 5 ", " 6 "}));
  }
};

}  // namespace tavimor::test
