// The links of the documents lead somewhere.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "support/files.h"
#include "support/matches.h"

namespace tavimor {
namespace {

namespace fs = std::filesystem;

void expectLinksOf(const fs::path& page) {
  for (const std::string& link : test::allMatches(test::readBytes(page.string()), R"(\]\(([^)#:\s]+)[^):]*\))"))
    EXPECT_TRUE(fs::exists(page.parent_path() / link)) << page << " leads to " << link;
}

TEST(Links, OfEveryPageLeadToAFile) {
  const fs::path root = TAVIMOR_SOURCE_DIR;
  for (const fs::path& folder : {root, root / "docs", root / "examples"})
    for (const auto& entry : fs::directory_iterator(folder))
      if (entry.path().extension() == ".md") expectLinksOf(entry.path());
}

}  // namespace
}  // namespace tavimor
