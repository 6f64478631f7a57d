#include "formats/printed_pieces.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "runtime/number_text.h"

namespace tavimor {
namespace {

void twoNumbers(std::size_t piece, std::vector<double>& numbers) {
  numbers = {static_cast<double>(piece), static_cast<double>(piece) + 0.5};
}

std::string linesOf(std::size_t piece) {
  const auto number = static_cast<double>(piece);
  return printedNumber(number) + "\r\n" + printedNumber(number + 0.5) + "\r\n";
}

TEST(PrintedPieces, ComeInTheirOrder) {
  for (const std::size_t pieces : {0, 1, 2, 3, 50}) {
    std::string lines, expected;
    forEachPrinted(pieces, twoNumbers, [&](const PrintedPiece& piece) {
      lines += piece.lines;
      EXPECT_EQ(piece.numbers, 2U);
    });
    for (std::size_t piece = 0; piece < pieces; ++piece) expected += linesOf(piece);
    EXPECT_EQ(lines, expected) << pieces;
  }
}

TEST(PrintedPieces, MayHaveMoreAndFewerNumbersThanEarlierOnes) {
  const auto asMany = [](std::size_t piece, std::vector<double>& numbers) { numbers.assign(piece * 7 % 11, 0.25); };
  std::size_t piece = 0;
  forEachPrinted(40, asMany, [&](const PrintedPiece& printed) {
    const std::size_t numbers = piece++ * 7 % 11;
    EXPECT_EQ(printed.numbers, numbers);
    EXPECT_EQ(printed.lines.size(), numbers * std::string_view(" .25 \r\n").size());
  });
  EXPECT_EQ(piece, 40U);
}

TEST(PrintedPieces, WhatCannotBeMadeIsAnErrorOfTheCaller) {
  const auto failing = [](std::size_t piece, std::vector<double>& numbers) {
    if (piece >= 3) throw std::runtime_error("no memory");
    twoNumbers(piece, numbers);
  };
  EXPECT_THROW(forEachPrinted(9, failing, [](const PrintedPiece&) {}), std::runtime_error);
}

TEST(PrintedPieces, AreNoLongerMadeWhenTheCallerGivesUp) {
  std::size_t taken = 0;
  EXPECT_THROW(forEachPrinted(1000, twoNumbers,
                              [&](const PrintedPiece&) {
                                if (++taken == 2) throw std::runtime_error("called off");
                              }),
               std::runtime_error);
  EXPECT_EQ(taken, 2U);
}

}  // namespace
}  // namespace tavimor
