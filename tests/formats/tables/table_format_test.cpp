#include "formats/tables/table_format.h"

#include <gtest/gtest.h>

namespace tavimor {

TEST(CellNumber, IsTheWholeCellWithItsDecimalMark) {
  EXPECT_EQ(cellNumber(" 1.5 ", DecimalMark::Point), 1.5);
  EXPECT_EQ(cellNumber("1,5", DecimalMark::Comma), 1.5);
  EXPECT_EQ(cellNumber("-2e-3", DecimalMark::Comma), -0.002);
  EXPECT_EQ(cellNumber("\t+7", DecimalMark::Point), 7.0);
}

TEST(CellNumber, IsNothingWhereAnythingElseStands) {
  for (const char* cell : {"", " ", "1.5x", "abc", "1,5", "1 2", "--1", "1E400", "INF", "NAN"})
    EXPECT_EQ(cellNumber(cell, DecimalMark::Point), std::nullopt) << cell;
  for (const char* cell : {"1.5", "1,2,3", "1.000,5"})
    EXPECT_EQ(cellNumber(cell, DecimalMark::Comma), std::nullopt) << cell;
}

TEST(SeparatorFromText, KnowsNamesAndSingleCharacters) {
  EXPECT_EQ(separatorFromText("comma"), ',');
  EXPECT_EQ(separatorFromText("semicolon"), ';');
  EXPECT_EQ(separatorFromText("tab"), '\t');
  EXPECT_EQ(separatorFromText("blank"), kBlanks);
  EXPECT_EQ(separatorFromText("|"), '|');
}

TEST(SeparatorFromText, RefusesWhatStandsInNumbers) {
  for (const char* text : {"", "5", ".", "-", "e", "\"", "::"})
    EXPECT_EQ(separatorFromText(text), std::nullopt) << text;
}

}  // namespace tavimor
