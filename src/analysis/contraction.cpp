#include "analysis/contraction.h"

#include <algorithm>
#include <functional>

#include "engine/parallel.h"

namespace tavimor {

namespace {

constexpr std::size_t kLinesTogether = 64;

// The lines along one axis of a table; consecutive ones lie side by side in memory as far as `inner` goes.
struct Lines {
  std::size_t count, length, inner;

  std::size_t place(std::size_t line, std::size_t i, std::size_t extent) const {
    return (line / inner * extent + i) * inner + line % inner;
  }
};

Lines linesAlong(const PerVariable<std::size_t>& extent, int k) {
  Lines lines{1, extent[k], 1};
  for (int axis = 0; axis < kMaxVariables; ++axis) {
    if (axis != k) lines.count *= extent[axis];
    if (axis < k) lines.inner *= extent[axis];
  }
  return lines;
}

// Some lines and points of a table, the lines side by side; lanes without a line are 0.
struct Tile {
  std::size_t firstLine, lineCount, lanes;
  std::size_t firstPoint, pointCount;
};

void gather(const Lines& lines, const Tile& tile, const double* from, double* to) {
  if (tile.lineCount < tile.lanes) std::fill_n(to, tile.pointCount * tile.lanes, 0.0);
  if (lines.inner == 1) {
    for (std::size_t line = 0; line < tile.lineCount; ++line) {
      const double* source = from + lines.place(tile.firstLine + line, tile.firstPoint, lines.length);
      for (std::size_t p = 0; p < tile.pointCount; ++p) to[p * tile.lanes + line] = source[p];
    }
    return;
  }
  for (std::size_t line = 0; line < tile.lineCount;) {
    const std::size_t first = tile.firstLine + line;
    const std::size_t run = std::min(tile.lineCount - line, lines.inner - first % lines.inner);
    for (std::size_t p = 0; p < tile.pointCount; ++p)
      std::copy_n(from + lines.place(first, tile.firstPoint + p, lines.length), run, to + p * tile.lanes + line);
    line += run;
  }
}

void scatter(const Lines& lines, const Tile& tile, const PairList& sums, PairTable& result, std::size_t columns) {
  for (std::size_t c = 0; c < columns; ++c)
    for (std::size_t line = 0; line < tile.lineCount; ++line) {
      const std::size_t from = c * tile.lanes + line;
      result.set(lines.place(tile.firstLine + line, c, columns), {sums.high[from], sums.low[from]});
    }
}

// Reads a tile into the block and is told the number of the group of lines that it belongs to.
using ReadTile = std::function<void(std::size_t group, const Tile& tile, Pairs block)>;

PairTable contractLines(const PerVariable<std::size_t>& extent, int k, const PairMatrix& matrix, const ReadTile& read,
                        const AnalysisOptions& options) {
  const PairSums& sums = pairSums(options.instructionSet);
  const Lines lines = linesAlong(extent, k);
  PerVariable<std::size_t> resultExtent = extent;
  resultExtent[k] = matrix.columns;
  PairTable result(resultExtent);
  const std::size_t groups = (lines.count + kLinesTogether - 1) / kLinesTogether;
  const double work = 14.0 * kLinesTogether * static_cast<double>(lines.length * matrix.columns);
  inParallel(groups, work, options.threads, [&](std::size_t firstGroup, std::size_t endGroup) {
    PairList block(kBlock * kLinesTogether), columnSums(matrix.columns * kLinesTogether);
    for (std::size_t group = firstGroup; group < endGroup; ++group) {
      goOn(options);
      Tile tile{group * kLinesTogether, 0, 0, 0, 0};
      tile.lineCount = std::min(kLinesTogether, lines.count - tile.firstLine);
      tile.lanes = paddedToChains(tile.lineCount);
      std::fill_n(columnSums.high.begin(), matrix.columns * tile.lanes, 0.0);
      std::fill_n(columnSums.low.begin(), matrix.columns * tile.lanes, 0.0);
      for (; tile.firstPoint < lines.length; tile.firstPoint += kBlock) {
        tile.pointCount = std::min(kBlock, lines.length - tile.firstPoint);
        read(group, tile, block);
        sums.contract(Pairs(block), tile.pointCount, tile.lanes, &matrix.elements[tile.firstPoint * matrix.columns],
                      matrix.columns, matrix.columns, columnSums);
      }
      scatter(lines, tile, columnSums, result, matrix.columns);
      if (options.progress && firstGroup == 0)
        options.progress(static_cast<double>(group + 1) / static_cast<double>(endGroup));
    }
  });
  return result;
}

}  // namespace

PairTable contracted(const PairTable& table, int k, const PairMatrix& matrix, const AnalysisOptions& options) {
  const Lines lines = linesAlong(table.extent, k);
  AnalysisOptions quietly = options;
  quietly.progress = nullptr;
  return contractLines(
      table.extent, k, matrix,
      [&](std::size_t, const Tile& tile, Pairs block) {
        gather(lines, tile, table.high.data(), block.high);
        gather(lines, tile, table.low.data(), block.low);
      },
      quietly);
}

FunctionContraction contracted(const FunctionValues& function, const PerVariable<std::size_t>& extent, int k,
                               const PairMatrix& matrix, const AnalysisOptions& options) {
  const PairSums& sums = pairSums(options.instructionSet);
  const Lines lines = linesAlong(extent, k);
  // One of each for a group of lines, put together in the order of groups.
  const std::size_t groups = (lines.count + kLinesTogether - 1) / kLinesTogether;
  ChainSums squares(groups);
  std::vector<char> exact(groups, 1);
  FunctionContraction result;
  result.table = contractLines(
      extent, k, matrix,
      [&](std::size_t group, const Tile& tile, Pairs block) {
        gather(lines, tile, function.values, block.high);
        const std::size_t count = tile.pointCount * tile.lanes;
        if (!finishBlock(function, sums, block, count)) exact[group] = 0;
        for (std::size_t n = 0; n < count; n += kMostDotted)
          sums.dots(block + n, block + n, 0, 1, std::min(kMostDotted, count - n), squares.from(group));
      },
      options);
  for (std::size_t group = 0; group < groups; ++group) result.sumOfSquares = result.sumOfSquares + squares.total(group);
  result.exactValues = std::all_of(exact.begin(), exact.end(), [](char one) { return one != 0; });
  return result;
}

}  // namespace tavimor
