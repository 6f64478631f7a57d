#include "formats/printed_pieces.h"

#include <deque>
#include <future>

#include "runtime/beside.h"
#include "runtime/number_text.h"

namespace tavimor {

void forEachPrinted(std::size_t pieces, const NumbersOfPiece& numbersOf,
                    const std::function<void(const PrintedPiece&)>& take) {
  constexpr std::size_t atATime = 2;
  const auto printed = [&numbersOf](std::size_t piece) {
    const std::vector<double> numbers = numbersOf(piece);
    return PrintedPiece{printedLines(numbers), numbers.size()};
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
