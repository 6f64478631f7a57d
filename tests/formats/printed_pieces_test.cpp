#include "formats/printed_pieces.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "runtime/number_text.h"

namespace tavimor {
namespace {

std::vector<double> twoNumbers(std::size_t piece) {
  return {static_cast<double>(piece), static_cast<double>(piece) + 0.5};
}

TEST(PrintedPieces, ComeInTheirOrder) {
  for (const std::size_t pieces : {0, 1, 2, 3, 50}) {
    std::string lines, expected;
    forEachPrinted(pieces, twoNumbers, [&](const PrintedPiece& piece) {
      lines += piece.lines;
      EXPECT_EQ(piece.numbers, 2U);
    });
    for (std::size_t piece = 0; piece < pieces; ++piece) expected += printedLines(twoNumbers(piece));
    EXPECT_EQ(lines, expected) << pieces;
  }
}

TEST(PrintedPieces, WhatCannotBeMadeIsAnErrorOfTheCaller) {
  const auto failing = [](std::size_t piece) {
    return piece < 3 ? twoNumbers(piece) : throw std::runtime_error("no memory");
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
