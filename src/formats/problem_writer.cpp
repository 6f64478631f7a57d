#include "formats/problem_writer.h"

#include <algorithm>
#include <span>
#include <vector>

#include "formats/file_pair.h"
#include "formats/foreign_file.h"
#include "formats/function_reader.h"
#include "formats/printed_pieces.h"
#include "model/grid_indices.h"
#include "model/table_strips.h"
#include "model/value_lists.h"

namespace tavimor {

namespace {

// Counts the numbers of the tables and of the values, which are nearly all that is written.
class Count {
 public:
  Count(const Problem& problem, const Fit& fit, const Progress& progress)
      : all_(problem.F.size() + (fit.FitDone ? fit.Coef.size() : 0)), progress_(progress) {
    for (Long d = 0; d < kMaxVariables; ++d) all_ += valueList(problem, d).size();
  }

  void add(std::size_t numbers) {
    done_ += numbers;
    if (progress_) progress_(static_cast<double>(done_) / static_cast<double>(all_));
  }

 private:
  std::size_t all_;
  std::size_t done_ = 0;
  const Progress& progress_;
};

void printPieces(std::size_t pieces, const NumbersOfPiece& numbersOf, OutputFile& file, Count& count) {
  forEachPrinted(pieces, numbersOf, [&](const PrintedPiece& piece) {
    file.printLines(piece.lines);
    count.add(piece.numbers);
  });
}

std::size_t piecesOf(std::size_t whole, std::size_t piece) { return (whole + piece - 1) / piece; }

void print(std::span<const double> numbers, OutputFile& file, Count& count) {
  const auto piece = [&](std::size_t n, std::vector<double>& some) {
    const auto from = numbers.subspan(n * kNumbersAtATime);
    some.assign(from.begin(), from.begin() + std::min(std::ssize(from), std::ptrdiff_t{kNumbersAtATime}));
  };
  printPieces(piecesOf(numbers.size(), kNumbersAtATime), piece, file, count);
}

void writeSpecification(const Problem& problem, const Fit& fit, OutputFile& file, Count& count) {
  file.print(problem.LastVar);
  for (Long v = 0; v <= problem.LastVar; ++v)
    file.write(problem.VarName[v], problem.LowerLimit[v], problem.UpperLimit[v], problem.Centre[v],
               problem.PeriodFlag[v], problem.Period[v], problem.Degree[v]);
  file.write(fit.FitDone);
  if (!fit.FitDone) return;
  print({fit.Coef.data(), fit.Coef.size()}, file, count);  // first index fastest
}

// The whole of a few first indices at a time.
void writeByStrips(const Table4& F, OutputFile& file, Count& count) {
  const std::size_t length = F.size() / F.extent(0), width = kNumbersAtATime / length;
  const auto strip = [&](std::size_t n, std::vector<double>& turned) {
    turned.resize(std::min(width, F.extent(0) - n * width) * length);
    turnStrip(F, n * width, turned);
  };
  printPieces(piecesOf(F.extent(0), width), strip, file, count);
}

void writeByPoints(const Table4& F, OutputFile& file, Count& count) {
  std::vector<double> points;
  forEachIndex<Fastest::Last>(F.last(), [&](const PerVariable<Long>& i) {
    points.push_back(F(i));
    if (points.size() < kNumbersAtATime) return;
    print(points, file, count);
    points.clear();
  });
  print(points, file, count);
}

// Numbers go with the last index fastest, a table lies with the first one fastest.
void writeFunction(const Table4& F, OutputFile& file, Count& count) {
  if (F.size() == F.extent(0))
    print({F.data(), F.size()}, file, count);
  else if (goesByStrips(F))
    writeByStrips(F, file, count);
  else
    writeByPoints(F, file, count);
}

void writeValues(const Problem& problem, const Fit& fit, OutputFile& file, Count& count) {
  file.print(problem.LastVar);
  for (Long v = 0; v <= problem.LastVar; ++v) {
    file.print(problem.LastPoint[v]);
    file.write(problem.EquallySpaced[v]);
  }
  for (Long d = 0; d < kMaxVariables; ++d)
    if (problem.LastPoint[d] != 0) print(valueList(problem, d), file, count);
  writeFunction(problem.F, file, count);
  if (fit.FitDone)
    file.write(problem.NumGridPoints, fit.CorrCoef, fit.StdErr, fit.SumRes2, fit.AvgGiven, fit.AvgEstimated);
}

}  // namespace

void writeProblem(const Problem& problem, const Fit& fit, const std::string& path, FileSteps& steps,
                  const Progress& progress, Access newAccess) {
  requireSameHalves(path);
  FilePair pair(path, steps, usualPatience(), newAccess);
  Count count(problem, fit, progress);
  writeSpecification(problem, fit, pair.specification(), count);
  writeValues(problem, fit, pair.values(), count);
  pair.commit();
}

}  // namespace tavimor
