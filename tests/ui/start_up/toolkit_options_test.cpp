#include "ui/start_up/toolkit_options.h"

#include <gtest/gtest.h>

namespace tavimor {
namespace {

using Words = std::vector<std::string>;

struct CommandLine {
  const char* name;
  Words words;
  Words own;
};

class ToolkitOptions : public testing::TestWithParam<CommandLine> {};

TEST_P(ToolkitOptions, AreTakenAwayAndNothingElse) {
  EXPECT_EQ(withoutToolkitOptions(GetParam().words), GetParam().own);
}

INSTANTIATE_TEST_SUITE_P(
    CommandLines, ToolkitOptions,
    testing::Values(CommandLine{"Nothing", {}, {}}, CommandLine{"AProblem", {"ozone"}, {"ozone"}},
                    CommandLine{"AValueBehindABlank", {"-platform", "offscreen", "ozone"}, {"ozone"}},
                    CommandLine{"AValueBehindASign", {"-style=fusion", "ozone"}, {"ozone"}},
                    CommandLine{"TwoDashes", {"--platform", "offscreen", "--style=fusion"}, {}},
                    CommandLine{"OneAlone", {"-reverse", "ozone"}, {"ozone"}},
                    CommandLine{"AMissingValue", {"ozone", "-platform"}, {"ozone"}},
                    CommandLine{"OptionsOfOurs", {"--version", "--help", "-h"}, {"--version", "--help", "-h"}},
                    CommandLine{"WrongOnes", {"--no-such-option", "-x"}, {"--no-such-option", "-x"}}),
    [](const auto& test) { return std::string(test.param.name); });

}  // namespace
}  // namespace tavimor
