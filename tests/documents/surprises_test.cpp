// docs/surprises.md names the tests that hold what it tells.
#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <string>

#include "support/files.h"
#include "support/matches.h"

namespace tavimor {
namespace {

namespace fs = std::filesystem;

const char* const kNamePattern = R"(`(\w+\.\w+)`)";

std::string page() { return test::readBytes(TAVIMOR_SOURCE_DIR "/docs/surprises.md"); }

std::set<std::string> testNames() {
  std::set<std::string> names;
  for (const auto& entry : fs::recursive_directory_iterator(TAVIMOR_SOURCE_DIR "/tests")) {
    if (entry.path().extension() != ".cpp") continue;
    for (const auto& name : test::allMatches(test::readBytes(entry.path().string()), R"(^TEST(?:_F)?\((\w+,\s*\w+)\))"))
      names.insert(name.substr(0, name.find(',')) + '.' + name.substr(name.find_last_of(" \n,") + 1));
  }
  return names;
}

TEST(Surprises, AreHeldByTestsThatExist) {
  const std::set<std::string> tests = testNames();
  for (const std::string& name : test::allMatches(page(), kNamePattern)) EXPECT_TRUE(tests.contains(name)) << name;
}

TEST(Surprises, EachNamesATest) {
  const auto surprises = test::allMatches(page(), R"(^- ((?:[^\n]+\n)(?:  [^\n]+\n)*))");
  ASSERT_GT(surprises.size(), 10u);
  for (const std::string& surprise : surprises)
    EXPECT_FALSE(test::allMatches(surprise, kNamePattern).empty()) << surprise;
}

}  // namespace
}  // namespace tavimor
