#include "analysis/contraction.h"

#include <algorithm>
#include <functional>
#include <numeric>
#include <span>

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

  // How many lines from this one on lie side by side.
  std::size_t runFrom(std::size_t line) const { return inner - line % inner; }
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
  std::span<const std::size_t> points;
};

// Calls visit(line, run) for lines of a tile that lie side by side in memory, `run` of them from `line` on.
template <class Visit>
void forEachRun(const Lines& lines, const Tile& tile, Visit visit) {
  for (std::size_t line = 0; line < tile.lineCount;) {
    const std::size_t run = std::min(tile.lineCount - line, lines.runFrom(tile.firstLine + line));
    visit(line, run);
    line += run;
  }
}

// Along the first axis no two lines lie side by side.
void copyRun(const double* from, std::size_t run, double* to) {
  if (run == 1)
    *to = *from;
  else
    std::copy_n(from, run, to);
}

void gather(const Lines& lines, const Tile& tile, const double* from, double* to) {
  const std::size_t pointCount = tile.points.size();
  if (tile.lineCount < tile.lanes) std::fill_n(to, pointCount * tile.lanes, 0.0);
  forEachRun(lines, tile, [&](std::size_t line, std::size_t run) {
    const double* source = from + lines.place(tile.firstLine + line, 0, lines.length);
    for (std::size_t p = 0; p < pointCount; ++p)
      copyRun(source + tile.points[p] * lines.inner, run, to + p * tile.lanes + line);
  });
}

// A tile of the function in the block, and what is seen of it.
SeenValues readFunction(const FunctionValues& function, const PairSums& sums, const Lines& lines, const Tile& tile,
                        Pairs block) {
  const bool areRows = tile.lineCount == tile.lanes && lines.runFrom(tile.firstLine) >= tile.lanes;
  if (areRows && function.areTyped())
    return readTypedRows(sums, function.values + lines.place(tile.firstLine, 0, lines.length), tile.points, lines.inner,
                         tile.lanes, block);
  gather(lines, tile, function.values, block.high);
  return readValues(function, sums, block.high, tile.points.size() * tile.lanes, block).seen;
}

// Columns of a matrix: every `step`-th from the first one on.
struct Columns {
  PairMatrix matrix;
  std::size_t first = 0, step = 1;
  bool beginsWithOnes = false;
};

// What a table is contracted with: the rows of a matrix at some points; or, folded, at points of which the first ones
// have others opposite, which they are added to for the even columns and subtracted from for the odd ones.
struct Factor {
  std::vector<std::size_t> points, opposite;
  std::vector<Columns> parts;

  bool folds() const { return parts.size() == 2; }
  std::size_t columnCount() const { return parts.front().matrix.columns + (folds() ? parts.back().matrix.columns : 0); }
};

Factor wholeOf(const PairMatrix& matrix, bool beginsWithOnes) {
  Factor factor{std::vector<std::size_t>(matrix.rows), {}, {{matrix, 0, 1, beginsWithOnes}}};
  std::iota(factor.points.begin(), factor.points.end(), std::size_t{0});
  return factor;
}

Columns everyOther(const PairMatrix& matrix, const std::vector<std::size_t>& rows, std::size_t first) {
  Columns result{PairMatrix(rows.size(), (matrix.columns + 1 - first) / 2), first, 2, first == 0};
  for (std::size_t row = 0; row < rows.size(); ++row)
    for (std::size_t c = 0; c < result.matrix.columns; ++c) result.matrix(row, c) = matrix(rows[row], first + 2 * c);
  return result;
}

Factor factorOf(const AxisBasis& basis) {
  if (basis.mirrored.empty()) return wholeOf(basis.values, true);
  Factor factor{basis.mirrored, {}, {}};
  std::vector<bool> isTaken(basis.count);
  for (const std::size_t i : basis.mirrored) {
    factor.opposite.push_back(basis.count - 1 - i);
    isTaken[i] = isTaken[basis.count - 1 - i] = true;
  }
  for (std::size_t i = 0; i < basis.count; ++i)
    if (!isTaken[i]) factor.points.push_back(i);
  factor.parts = {everyOther(basis.values, factor.points, 0), everyOther(basis.values, factor.points, 1)};
  return factor;
}

// Reads a tile into the block and is told the number of the group of lines that it belongs to.
using ReadTile = std::function<void(std::size_t group, const Tile& tile, Pairs block)>;

// The buffers of one thread and what it does with a group of lines.
class LineGroups {
 public:
  LineGroups(const Lines& lines, const Factor& factor, const ReadTile& read, const PairSums& sums, PairTable& result)
      : lines_(lines), factor_(factor), read_(read), sums_(sums), result_(result) {
    const std::size_t lanes = std::min(kLinesTogether, paddedToChains(lines.count));
    for (const Columns& part : factor.parts) {
      blocks_.emplace_back(std::min(kBlock, factor.points.size()) * lanes);
      columnSums_.emplace_back(part.matrix.columns * lanes);
    }
  }

  void operator()(std::size_t group) {
    Tile tile{group * kLinesTogether, 0, 0, {}};
    tile.lineCount = std::min(kLinesTogether, lines_.count - tile.firstLine);
    tile.lanes = paddedToChains(tile.lineCount);
    for (PairList& sums : columnSums_) {
      std::fill(sums.high.begin(), sums.high.end(), 0.0);
      std::fill(sums.low.begin(), sums.low.end(), 0.0);
    }
    for (std::size_t first = 0; first < factor_.points.size(); first += kBlock) {
      tile.points = partOf(factor_.points, first);
      read_(group, tile, blocks_[0]);
      if (factor_.folds()) fold(group, tile, first);
      for (std::size_t n = 0; n < factor_.parts.size(); ++n)
        contract(tile, factor_.parts[n], first, Pairs(blocks_[n]), columnSums_[n]);
    }
    for (std::size_t n = 0; n < factor_.parts.size(); ++n) scatter(tile, factor_.parts[n], columnSums_[n]);
  }

 private:
  static std::span<const std::size_t> partOf(std::span<const std::size_t> points, std::size_t first) {
    return first < points.size() ? points.subspan(first, std::min(kBlock, points.size() - first)) : points.first(0);
  }

  // Points that have none opposite are added to 0.
  void fold(std::size_t group, const Tile& tile, std::size_t first) {
    Tile opposite = tile;
    opposite.points = partOf(factor_.opposite, first);
    if (!opposite.points.empty()) read_(group, opposite, blocks_[1]);
    const std::size_t count = tile.points.size() * tile.lanes, found = opposite.points.size() * tile.lanes;
    std::fill_n(Pairs(blocks_[1]).high + found, count - found, 0.0);
    std::fill_n(Pairs(blocks_[1]).low + found, count - found, 0.0);
    sums_.sumAndDifference(Pairs(blocks_[0]), Pairs(blocks_[1]), count, blocks_[0], blocks_[1]);
  }

  void contract(const Tile& tile, const Columns& part, std::size_t first, ConstPairs block, Pairs sums) {
    const PairMatrix& matrix = part.matrix;
    const std::size_t ones = part.beginsWithOnes ? 1 : 0;
    if (part.beginsWithOnes) sums_.addUp(block, tile.points.size(), tile.lanes, sums);
    sums_.contract(block, tile.points.size(), tile.lanes, matrix.elements.data() + first * matrix.columns + ones,
                   matrix.columns, matrix.columns - ones, sums + ones * tile.lanes);
  }

  void scatter(const Tile& tile, const Columns& part, const PairList& sums) {
    const std::size_t columns = factor_.columnCount();
    forEachRun(lines_, tile, [&](std::size_t line, std::size_t run) {
      for (std::size_t c = 0; c < part.matrix.columns; ++c) {
        const std::size_t from = c * tile.lanes + line;
        const std::size_t to = lines_.place(tile.firstLine + line, part.first + c * part.step, columns);
        copyRun(&sums.high[from], run, &result_.high[to]);
        copyRun(&sums.low[from], run, &result_.low[to]);
      }
    });
  }

  const Lines& lines_;
  const Factor& factor_;
  const ReadTile& read_;
  const PairSums& sums_;
  PairTable& result_;
  std::vector<PairList> blocks_, columnSums_;  // of each part
};

PairTable contractLines(const PerVariable<std::size_t>& extent, int k, const Factor& factor, const ReadTile& read,
                        const AnalysisOptions& options) {
  const Lines lines = linesAlong(extent, k);
  PerVariable<std::size_t> resultExtent = extent;
  resultExtent[k] = factor.columnCount();
  PairTable result(resultExtent);
  const std::size_t groups = (lines.count + kLinesTogether - 1) / kLinesTogether;
  const double work = 14.0 * kLinesTogether * static_cast<double>(factor.points.size() * resultExtent[k]);
  inParallel(groups, work, options.threads, [&](std::size_t firstGroup, std::size_t endGroup) {
    LineGroups contractGroup(lines, factor, read, pairSums(options.instructionSet), result);
    for (std::size_t group = firstGroup; group < endGroup; ++group) {
      goOn(options);
      contractGroup(group);
      if (options.progress && firstGroup == 0)
        options.progress(static_cast<double>(group + 1) / static_cast<double>(endGroup));
    }
  });
  return result;
}

PairTable contractTable(const PairTable& table, int k, const Factor& factor, const AnalysisOptions& options) {
  const Lines lines = linesAlong(table.extent, k);
  AnalysisOptions quietly = options;
  quietly.progress = nullptr;
  return contractLines(
      table.extent, k, factor,
      [&](std::size_t, const Tile& tile, Pairs block) {
        gather(lines, tile, table.high.data(), block.high);
        gather(lines, tile, table.low.data(), block.low);
      },
      quietly);
}

}  // namespace

PairTable contracted(const PairTable& table, int k, const PairMatrix& matrix, const AnalysisOptions& options) {
  return contractTable(table, k, wholeOf(matrix, false), options);
}

PairTable contracted(const PairTable& table, int k, const AxisBasis& basis, const AnalysisOptions& options) {
  return contractTable(table, k, factorOf(basis), options);
}

FunctionContraction contracted(const FunctionValues& function, const PerVariable<std::size_t>& extent, int k,
                               const AxisBasis& basis, const AnalysisOptions& options) {
  const PairSums& sums = pairSums(options.instructionSet);
  const Lines lines = linesAlong(extent, k);
  // One of each for a group of lines, put together in the order of groups.
  const std::size_t groups = (lines.count + kLinesTogether - 1) / kLinesTogether;
  ChainSums squares(groups);
  std::vector<SeenValues> seen(groups);
  FunctionContraction result;
  result.table = contractLines(
      extent, k, factorOf(basis),
      [&](std::size_t group, const Tile& tile, Pairs block) {
        seen[group].add(readFunction(function, sums, lines, tile, block));
        const std::size_t count = tile.points.size() * tile.lanes;
        for (std::size_t n = 0; n < count; n += kMostDotted)
          sums.squares(block + n, std::min(kMostDotted, count - n), squares.from(group));
      },
      options);
  for (std::size_t group = 0; group < groups; ++group) {
    result.sumOfSquares = result.sumOfSquares + squares.total(group);
    result.function.add(seen[group]);
  }
  return result;
}

}  // namespace tavimor
