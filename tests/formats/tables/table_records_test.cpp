#include "formats/tables/table_records.h"

#include <gmock/gmock.h>

#include <string>
#include <utility>

namespace tavimor {

using testing::ElementsAre;
using testing::Pair;

namespace {

std::vector<std::pair<long, std::string>> recordsOf(std::string_view text) {
  std::vector<std::pair<long, std::string>> found;
  TableRecords records(text, ',');
  TableRecord record;
  while (records.next(record)) found.emplace_back(record.line, record.text);
  return found;
}

std::vector<std::string> cellsOf(std::string_view line, char separator) {
  CellSplitter splitter(separator);
  const bool quoted = line.find('"') != std::string_view::npos;
  std::vector<std::string> cells;
  for (const std::string_view cell : splitter.split({line, 1, quoted})) cells.emplace_back(cell);
  return cells;
}

}  // namespace

TEST(TableRecords, PassOverCommentsAndEmptyLines) {
  EXPECT_THAT(recordsOf("# title\n\n1,2\n  \t\n% note\n// note\n3,4"), ElementsAre(Pair(3, "1,2"), Pair(7, "3,4")));
}

TEST(TableRecords, EndWithCrLfToo) {
  EXPECT_THAT(recordsOf("\xEF\xBB\xBF"
                        "1,2\r\n3,4\r\n"),
              ElementsAre(Pair(1, "1,2"), Pair(2, "3,4")));
}

TEST(TableRecords, GoOnOverTheLinesOfAQuotedCell) {
  EXPECT_THAT(recordsOf("\"a\nb\",2\n3,4\n"), ElementsAre(Pair(1, "\"a\nb\",2"), Pair(3, "3,4")));
}

TEST(TableRecords, AMarkWithinACellOpensNothing) {
  EXPECT_THAT(recordsOf("5\" disk,x\n1,2\n"), ElementsAre(Pair(1, "5\" disk,x"), Pair(2, "1,2")));
}

TEST(TableRecords, AMarkThatIsNeverClosedEndsWithItsLine) {
  const std::string text = "\"open,1\n" + std::string(400000, '1') + "\n";
  EXPECT_EQ(recordsOf(text).front().second, "\"open,1");
}

TEST(CellSplitter, CutsAtSeparatorsAndTrims) {
  EXPECT_THAT(cellsOf(" 1 ,2,,3 ", ','), ElementsAre("1", "2", "", "3"));
  EXPECT_THAT(cellsOf("1\t 2\t", '\t'), ElementsAre("1", "2", ""));
  EXPECT_THAT(cellsOf("  1 \t 2   3 ", kBlanks), ElementsAre("1", "2", "3"));
}

TEST(CellSplitter, QuotedCellsHoldSeparatorsAndMarks) {
  EXPECT_THAT(cellsOf(R"("a, b",2,"say ""hi""",)", ','), ElementsAre("a, b", "2", "say \"hi\"", ""));
  EXPECT_THAT(cellsOf("\"a b\"  2\t3", kBlanks), ElementsAre("a b", "2", "3"));
  EXPECT_THAT(cellsOf("\"0,5\";\"1,5\"", ';'), ElementsAre("0,5", "1,5"));
}

TEST(LineOfText, GivesALineAsItStands) {
  EXPECT_EQ(lineOfText("a\r\nb\n\nd", 1), "a");
  EXPECT_EQ(lineOfText("a\r\nb\n\nd", 4), "d");
  EXPECT_EQ(lineOfText("a\r\nb\n\nd", 3), "");
  EXPECT_EQ(lineOfText("a\r\nb\n\nd", 9), "");
}

}  // namespace tavimor
