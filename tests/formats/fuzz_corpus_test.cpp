#include <gtest/gtest.h>

#include <filesystem>

#include "problem_round_trip.h"
#include "support/files.h"
#include "support/temporary_folder.h"

namespace tavimor {
namespace {

const std::string kCorpus = TAVIMOR_SOURCE_DIR "/fuzz/corpus";

class FuzzCorpus : public test::FolderTest, public testing::WithParamInterface<std::string> {};

TEST_P(FuzzCorpus, IsRefusedOrSurvivesSaveOpenSave) {
  EXPECT_NO_THROW(checkProblemRoundTrip(test::readBytes(kCorpus + "/" + GetParam()), folder / "p"));
}

INSTANTIATE_TEST_SUITE_P(ProblemReader, FuzzCorpus, testing::ValuesIn(test::namesIn(kCorpus)),
                         [](const auto& name) { return name.param; });

}  // namespace
}  // namespace tavimor
