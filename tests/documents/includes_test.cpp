// The includes of src/, held against the table of folders in CONTRIBUTING.md.
#include <gmock/gmock.h>

#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "support/files.h"
#include "support/matches.h"

namespace tavimor {
namespace {

namespace fs = std::filesystem;
using test::allMatches;
using testing::IsEmpty;
using testing::Not;
using Names = std::set<std::string>;
using Arrows = std::map<std::string, Names>;  // from a name to those that it includes

const fs::path kRoot = TAVIMOR_SOURCE_DIR;

// Every name with all that its arrows lead to, one behind the other.
Arrows closed(Arrows arrows) {
  for (bool changed = true; changed;) {
    changed = false;
    for (auto& [name, reached] : arrows) {
      const std::size_t before = reached.size();
      for (const std::string& next : Names(reached)) reached.insert(arrows[next].begin(), arrows[next].end());
      changed = changed || reached.size() != before;
    }
  }
  return arrows;
}

// The rows "| `src/engine` | what is there | `model`, ... |" of the table: what a folder may include besides itself.
Arrows allowedByTheTable() {
  Arrows allowed;
  const std::string page = test::readBytes((kRoot / "CONTRIBUTING.md").string());
  for (const std::string& row : allMatches(page, R"(^\| (`src/[^\n]*) \|)")) {
    const std::string folder = allMatches(row, "^`src/([^`]*)`").front();
    const auto others = allMatches(row.substr(row.rfind('|')), "`([^`]*)`");
    allowed[folder] = Names(others.begin(), others.end());
  }
  return closed(allowed);
}

// The folder of the table that a path below src/ lies in.
std::string folderOf(const std::string& path, const Arrows& table) {
  std::string folder = path.substr(0, path.rfind('/'));
  while (!table.contains(folder) && folder.find('/') != std::string::npos) folder.resize(folder.rfind('/'));
  return folder;
}

Names sourceFiles() {
  Names files;
  for (const auto& entry : fs::recursive_directory_iterator(kRoot / "src"))
    if (const std::string kind = entry.path().extension().string(); kind == ".h" || kind == ".cpp" || kind == ".inc")
      files.insert(fs::relative(entry.path(), kRoot / "src").generic_string());
  return files;
}

std::vector<std::string> includesOf(const std::string& file) {
  return allMatches(test::readBytes((kRoot / "src" / file).string()), R"re(^#include "([^"]*)")re");
}

std::string unitOf(const std::string& file) { return file.substr(0, file.rfind('.')); }

TEST(Includes, GoOnlyWhereTheTableOfFoldersLetsThem) {
  const Arrows allowed = allowedByTheTable();
  ASSERT_THAT(allowed, Not(IsEmpty()));
  for (const std::string& file : sourceFiles())
    for (const std::string& included : includesOf(file)) {
      const std::string from = folderOf(file, allowed), to = folderOf(included, allowed);
      ASSERT_TRUE(allowed.contains(from)) << file << " lies in no folder of the table";
      EXPECT_TRUE(from == to || allowed.at(from).contains(to)) << file << " includes " << included;
    }
}

TEST(Includes, TheTableHasNoCircle) {
  for (const auto& [folder, reached] : allowedByTheTable()) EXPECT_FALSE(reached.contains(folder)) << folder;
}

TEST(Includes, NoTwoUnitsIncludeEachOther) {
  Arrows units;
  for (const std::string& file : sourceFiles())
    for (const std::string& included : includesOf(file))
      if (unitOf(included) != unitOf(file)) units[unitOf(file)].insert(unitOf(included));
  for (const auto& [unit, reached] : closed(units)) EXPECT_FALSE(reached.contains(unit)) << unit;
}

TEST(Includes, OnlyTheWindowsKnowTheToolkit) {
  for (const std::string& file : sourceFiles()) {
    if (file.starts_with("ui/")) continue;
    const std::string text = test::readBytes((kRoot / "src" / file).string());
    EXPECT_THAT(allMatches(text, R"(^#include <(Q\w+)>)"), IsEmpty()) << file;
  }
}

}  // namespace
}  // namespace tavimor
