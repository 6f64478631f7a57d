#include <gtest/gtest.h>

#include "support/files.h"
#include "table_import_check.h"

namespace tavimor {
namespace {

const std::string kCorpus = TAVIMOR_SOURCE_DIR "/fuzz/table_corpus";

class TableCorpus : public testing::TestWithParam<std::string> {};

TEST_P(TableCorpus, IsRefusedOrGivesItsOwnPointsAgain) {
  EXPECT_NO_THROW(checkTableImport(test::readBytes(kCorpus + "/" + GetParam())));
}

INSTANTIATE_TEST_SUITE_P(TableReader, TableCorpus, testing::ValuesIn(test::namesIn(kCorpus)),
                         [](const auto& name) { return name.param; });

}  // namespace
}  // namespace tavimor
