#include "formats/function_reader.h"

#include <algorithm>
#include <span>
#include <vector>

#include "model/grid_indices.h"
#include "model/table_strips.h"

namespace tavimor {

namespace {

constexpr char kFunctionValue[] = "a value of the function";

// Where a few first indices have few points together, these are put into their places by cache lines.
void readByStrips(InputFile& file, Table4& table) {
  const std::size_t length = table.size() / table.extent(0);
  std::vector<double> turned(kStripWidth * length);
  for (std::size_t first = 0; first < table.extent(0); first += kStripWidth) {
    const std::size_t width = std::min(kStripWidth, table.extent(0) - first);
    const std::span<double> strip = std::span(turned).first(width * length);
    file.readDoubles(kFunctionValue, strip);
    putStrip(strip, first, table);
  }
}

void readLine(InputFile& file, double* line, std::size_t stride, std::size_t count, std::span<double> part) {
  for (std::size_t first = 0; first < count; first += part.size()) {
    const std::span<double> numbers = part.first(std::min(part.size(), count - first));
    file.readDoubles(kFunctionValue, numbers);
    for (std::size_t n = 0; n < numbers.size(); ++n) line[(first + n) * stride] = numbers[n];
  }
}

// Line by line along the last axis that has more than one value.
void readByLines(InputFile& file, Table4& table) {
  int axis = kMaxVariables - 1;
  while (axis > 0 && table.last()[axis] == 0) --axis;
  PerVariable<Long> lines = table.last();
  lines[axis] = 0;
  std::vector<double> part(std::min(table.extent(axis), kNumbersAtATime));
  forEachIndex<Fastest::Last>(lines, [&](const PerVariable<Long>& first) {
    readLine(file, &table(first), table.stride(axis), table.extent(axis), part);
  });
}

}  // namespace

bool goesByStrips(const Table4& F) { return kStripWidth * (F.size() / F.extent(0)) <= kNumbersAtATime; }

void readFunction(InputFile& file, Table4& F) {
  if (F.size() == F.extent(0))
    file.readDoubles(kFunctionValue, {F.data(), F.size()});
  else if (goesByStrips(F))
    readByStrips(file, F);
  else
    readByLines(file, F);
}

}  // namespace tavimor
