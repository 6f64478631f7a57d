// Files below a megabyte that ask for more than can be: no command takes more than five seconds of a processor or
// 300 MB for one of them, and each ends by itself.
#include <ostream>

#include "cli/cli.h"
#include "cli/exit_code.h"
#include "runtime/long.h"

namespace tavimor {
namespace {

constexpr std::size_t kMostBytes = 1'000'000;
constexpr double kMostSeconds = 5.0;
constexpr double kMostMegabytes = 300.0;

// `count` numbers behind one another, as short as numbers are.
std::string numbers(std::size_t count) {
  std::string text;
  for (std::size_t n = 0; n < count; ++n) text += {static_cast<char>('0' + n * 7 % 10), n + 1 < count ? ',' : '\n'};
  return text;
}

std::string variable(const std::string& name, const std::string& degree) {
  return '"' + name + "\",0,1,0,#TRUE#,0," + degree + "\n";
}

std::string specification(const std::vector<std::string>& degrees, const std::string& fit = "#FALSE#\n") {
  std::string text = std::to_string(degrees.size() - 1) + "\n";
  for (const std::string& degree : degrees) text += variable("x", degree);
  return text + fit;
}

std::string counts(const std::vector<std::string>& lastPoints) {
  std::string text = std::to_string(lastPoints.size() - 1) + "\n";
  for (const std::string& last : lastPoints) text += last + "\n#FALSE#\n";
  return text;
}

struct HostilePair {
  const char* name;
  std::string specification;
  std::string values;
};

void PrintTo(const HostilePair& pair, std::ostream* out) { *out << pair.name; }

const std::string kHuge = "2147483646";

std::vector<HostilePair> hostilePairs() {
  const std::string eight = counts({"1", "1", "1"}) + numbers(6 + 8);
  return {
      {"HugeDegree", specification({kHuge}), counts({"1"}) + numbers(4)},
      {"HugeDegrees", specification({kHuge, kHuge, kHuge}), eight},
      {"DegreesOfAThousand", specification({"1023", "1023", "1023"}), eight},
      {"DegreesWithoutRoom", specification({"1023", "2"}), counts({"119999", "1"}) + numbers(120002 + 240000)},
      {"DegreeWithRoomWhoseMatrixHasNone", specification({"239999"}), counts({"239999"}) + numbers(480000)},
      {"DegreeOfAllItsValues", specification({"39999"}), counts({"39999"}) + numbers(80000)},
      {"HugeDegreeWithAStoredFit", specification({kHuge}, "#TRUE#\n1,2,3\n"), counts({"1"}) + numbers(4)},
      {"MoreCoefficientsThanPoints", specification({"21", "21", "21", "21"}, "#TRUE#\n" + numbers(22 * 22 * 22 * 22)),
       counts({"1", "1", "1", "1"}) + numbers(8 + 16) + "16,0,0,0,0,0\n"},
      {"HugeCount", specification({"1"}), counts({kHuge}) + "1\n"},
      {"HugeCounts", specification({"1", "1", "1"}), counts({kHuge, kHuge, kHuge}) + "1\n"},
      {"CountsThatWrapAround", specification({"1", "1", "1", "1"}),
       counts({"65535", "65535", "65535", "65535"}) + "1\n"},
      {"CountWithoutValues", specification({"1"}), counts({"499000"}) + std::string(900'000, ',') + "\n"},
      {"CountWithTooFewValues", specification({"1"}), counts({"249000"}) + numbers(480'000)},
      {"EmptyLines", specification({"1"}), counts({"249000"}) + std::string(900'000, '\n') + "1\n"},
      {"Blanks", specification({"1"}), counts({"1"}) + std::string(900'000, ' ') + "1\n"},
      {"DigitsOfOneNumber", specification({"1"}), counts({"1"}) + std::string(900'000, '7') + "\n"},
      {"QuotationMarks", std::string(900'000, '"'), counts({"1"}) + numbers(4)},
      {"OneSpecification", specification({"1"}), ""},
      {"LongNamesOfManyCoefficients",
       "0\n" + variable(std::string(200'000, 'a'), "9999") + "#TRUE#\n" + numbers(10'000),
       counts({"9999"}) + numbers(20'000) + "10000,0,0,0,0,0\n"},
      {"LongNames",
       "2\n" + variable(std::string(250'000, 'a'), "1") + variable(std::string(250'000, 'b'), "1") +
           variable(std::string(250'000, 'c'), "1") + "#FALSE#\n",
       eight},
  };
}

class HostileFiles : public test::CommandTest {
 protected:
  // What goes to standard output is thrown away: only a reader could want to keep it.
  void expectModestEnd(const std::vector<std::string>& words) {
    const test::Descriptor nothing(open("/dev/null", O_RDWR | O_CLOEXEC));
    const int stream = nothing.number();
    test::Process process(stream, stream, stream, [&] { return test::execute(TAVIMOR_CLI, words); });
    test::Usage usage;
    const int status = process.wait(usage);
    EXPECT_TRUE(status >= 0 && status <= static_cast<int>(ExitCode::NoFit)) << status;
    EXPECT_LT(usage.processorSeconds, kMostSeconds);
    EXPECT_LT(usage.megabytes, kMostMegabytes);
  }

  void expectModestCommands(const std::string& problem, Long variables) {
    std::vector<std::vector<std::string>> commands = {{"show"},      {"fit"},     {"fit", "--precise"}, {"report"},
                                                      {"residuals"}, {"analyse"}, {"degrees"}};
    for (const char* format : {"c", "text", "gnuplot", "json"})
      commands.push_back({"export", "--to", format, "-o", folder / "exported"});
    for (std::vector<std::string>& words : commands) words.push_back(problem);
    commands.push_back({"copy", problem, folder / "copied"});
    commands.push_back({"eval", problem});
    for (Long k = 0; k < variables; ++k) commands.back().push_back("0.5");
    for (const auto& words : commands) {
      SCOPED_TRACE(testing::PrintToString(words));
      expectModestEnd(words);
    }
  }
};

class HostilePairs : public HostileFiles, public testing::WithParamInterface<HostilePair> {};

TEST_P(HostilePairs, TakeLittleTimeAndMemory) {
  const HostilePair& pair = GetParam();
  ASSERT_LT(std::max(pair.specification.size(), pair.values.size()), kMostBytes);
  expectModestCommands(writePair("p", pair.specification, pair.values), pair.specification[0] - '0' + 1);
}

INSTANTIATE_TEST_SUITE_P(Files, HostilePairs, testing::ValuesIn(hostilePairs()),
                         [](const auto& one) { return std::string(one.param.name); });

struct HostileTable {
  const char* name;
  std::string text;
};

void PrintTo(const HostileTable& table, std::ostream* out) { *out << table.name; }

// A table's text, made of `count` lines that `line` gives for their numbers.
template <class Line>
std::string lines(std::size_t count, Line line) {
  std::string text;
  for (std::size_t n = 0; n < count; ++n) (text += line(n)) += '\n';
  return text;
}

std::vector<HostileTable> hostileTables() {
  const auto number = [](std::size_t n) { return std::to_string(n); };
  return {
      {"Diagonal", lines(60'000, [&](std::size_t n) { return number(n) + "," + number(n * 7 % 60'013) + ",1"; })},
      {"DiagonalOfFour", lines(30'000,
                               [&](std::size_t n) {
                                 return number(n) + ";" + number(n * 7 % 30'011) + ";" + number(n * 11 % 30'011) + ";" +
                                        number(n * 13 % 30'011) + ";1";
                               })},
      {"OnePointOnEachLine", lines(200'000, [](std::size_t) { return "1,1"; })},
      {"ManyColumns", lines(20, [&](std::size_t) { return numbers(20'000); })},
      {"OneLine", numbers(400'000)},
      {"Separators", std::string(900'000, ',')},
      {"LineEnds", std::string(900'000, '\n')},
      {"OneCell", std::string(900'000, '7')},
      {"AMarkThatIsNeverClosed", "x,y\n1,\"" + std::string(900'000, 'a')},
      {"QuotationMarks", std::string(900'000, '"')},
      {"Comments", lines(300'000, [](std::size_t) { return "#"; })},
      {"NestedArrays", "{" + std::string(900'000, '[')},
      {"JsonOfAHugeDegree",
       R"({"format": "tavimor-problem", "version": 1, "variables": [{"name": "x", "lower": 0, "upper": 1, "centre": 0, )"
       R"("degree": 2147483646, "equallySpaced": false, "periodFlag": true, "period": 0, "values": [0, 1]}], )"
       R"("function": [1, 2], "fit": null})"},
  };
}

class HostileTables : public HostileFiles, public testing::WithParamInterface<HostileTable> {};

TEST_P(HostileTables, TakeLittleTimeAndMemory) {
  ASSERT_LT(GetParam().text.size(), kMostBytes);
  test::writeBytes(folder / "table", GetParam().text);
  std::vector<std::string> words = {"import", folder / "table", folder / "problem"};
  expectModestEnd(words);
  if (GetParam().text.starts_with('{')) return;  // the options are those of tables
  for (const char* option : {"--gaps", "shrink", "--duplicates", "mean"}) words.push_back(option);
  expectModestEnd(words);
}

INSTANTIATE_TEST_SUITE_P(Files, HostileTables, testing::ValuesIn(hostileTables()),
                         [](const auto& one) { return std::string(one.param.name); });

}  // namespace
}  // namespace tavimor
