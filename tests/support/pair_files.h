#pragma once

#include <string>

#include "support/files.h"
#include "support/stored.h"
#include "support/temporary_folder.h"

namespace tavimor::test {

/// The text with CR LF where it has LF.
inline std::string withCrLf(const std::string& text) {
  std::string result;
  for (const char c : text) result += c == '\n' ? std::string("\r\n") : std::string(1, c);
  return result;
}

/// A fixture with the pair of problem files "p" and "p.dat" in a folder of its own.
class PairTest : public FolderTest {
 protected:
  std::string path() const { return folder / "p"; }

  void writePair(const std::string& specification, const std::string& values) const {
    writeBytes(folder / "p", specification);
    writeBytes(folder / "p.dat", values);
  }

  Dimension read() const { return stored(path()); }

  void expectBytes(const std::string& specification, const std::string& values) const {
    EXPECT_EQ(readBytes(folder / "p"), specification);
    EXPECT_EQ(readBytes(folder / "p.dat"), values);
  }
};

}  // namespace tavimor::test
