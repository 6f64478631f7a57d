#pragma once

#include <cstddef>
#include <functional>
#include <string_view>
#include <vector>

namespace tavimor {

/// Puts the numbers of a piece in the place of others.
using NumbersOfPiece = std::function<void(std::size_t piece, std::vector<double>& numbers)>;

struct PrintedPiece {
  std::string_view lines;  // Print lines, until it has been taken
  std::size_t numbers;
};

/// Makes Print lines of pieces of numbers, two at a time in threads of their own, and hands them over in their order in
/// the caller's thread, which has the system write one piece while the next ones are made. A single piece is made in
/// the caller's thread. One of 20480 numbers takes several times as long as a thread's start.
void forEachPrinted(std::size_t pieces, const NumbersOfPiece& numbersOf,
                    const std::function<void(const PrintedPiece&)>& take);

}  // namespace tavimor
