#include "formats/printed_pieces.h"

#include <array>
#include <deque>
#include <future>

#include "runtime/beside.h"
#include "runtime/number_text.h"

namespace tavimor {

namespace {

// Kept from piece to piece: touching new memory for each would take as long as making its text.
struct Room {
  std::vector<double> numbers;
  std::vector<char> text;
};

}  // namespace

void forEachPrinted(std::size_t pieces, const NumbersOfPiece& numbersOf,
                    const std::function<void(const PrintedPiece&)>& take) {
  constexpr std::size_t atATime = 2;
  std::array<Room, atATime> rooms;
  const auto printed = [&](std::size_t piece) {
    Room& room = rooms[piece % atATime];
    numbersOf(piece, room.numbers);
    return PrintedPiece{printedLines(room.numbers, room.text), room.numbers.size()};
  };
  if (pieces == 1) return take(printed(0));
  std::deque<std::future<PrintedPiece>> inWork;
  for (std::size_t piece = 0; piece < pieces || !inWork.empty();) {
    for (; piece < pieces && inWork.size() < atATime; ++piece)
      inWork.push_back(startBeside([&printed, piece] { return printed(piece); }));
    take(inWork.front().get());
    inWork.pop_front();
  }
}

}  // namespace tavimor
