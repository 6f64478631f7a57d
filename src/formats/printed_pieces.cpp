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
  std::array<Room, atATime + 1> rooms;  // one for the piece that is taken meanwhile
  const auto printed = [&](std::size_t piece) {
    Room& room = rooms[piece % rooms.size()];
    numbersOf(piece, room.numbers);
    return PrintedPiece{printedLines(room.numbers, room.text), room.numbers.size()};
  };
  if (pieces == 1) return take(printed(0));
  std::deque<std::future<PrintedPiece>> inWork;
  std::size_t begun = 0;
  const auto begin = [&] {
    for (; begun < pieces && inWork.size() < atATime; ++begun)
      inWork.push_back(startBeside([&printed, piece = begun] { return printed(piece); }));
  };
  begin();
  while (!inWork.empty()) {
    const PrintedPiece piece = inWork.front().get();
    inWork.pop_front();
    begin();
    take(piece);
  }
}

}  // namespace tavimor
