#include "analysis/pictures/contour_lines.h"

#include <array>
#include <cmath>
#include <map>
#include <set>

namespace tavimor {

namespace {

// The edges of a cell, counter-clockwise from the lower one.
enum Side { kLower, kRight, kUpper, kLeft };

// Cuts of a cell, each from one side to another, by which corners are above the level: bit n is corner n,
// counter-clockwise from the lower left one. The two saddles are cut otherwise.
struct Cut {
  Side from, to;
};
constexpr std::array<Cut, 16> kCuts{{{kLower, kLower},
                                     {kLeft, kLower},
                                     {kLower, kRight},
                                     {kLeft, kRight},
                                     {kRight, kUpper},
                                     {kLower, kLower},
                                     {kLower, kUpper},
                                     {kLeft, kUpper},
                                     {kUpper, kLeft},
                                     {kUpper, kLower},
                                     {kLower, kLower},
                                     {kUpper, kRight},
                                     {kRight, kLeft},
                                     {kRight, kLower},
                                     {kLower, kLeft},
                                     {kLower, kLower}}};
constexpr unsigned kNoneAbove = 0, kAllAbove = 15, kRisingSaddle = 5, kFallingSaddle = 10;

using Edge = std::size_t;  // edges along x have even numbers, those along y odd ones

// The cuts of one level, and the lines that they join to. Every line has the higher values on the same side, so that
// each edge begins one cut at most and ends one at most.
class Level {
 public:
  Level(const Sheet& sheet, double level) : sheet_(sheet), level_(level) {}

  std::vector<ContourLine> lines() {
    for (std::size_t j = 0; j + 1 < sheet_.y.size(); ++j)
      for (std::size_t i = 0; i + 1 < sheet_.x.size(); ++i) cutCell(i, j);
    std::set<Edge> ends;
    for (const auto& cut : next_) ends.insert(cut.second);
    std::vector<Edge> begins;
    for (const auto& cut : next_)
      if (!ends.contains(cut.first)) begins.push_back(cut.first);
    std::vector<ContourLine> lines;
    for (const Edge begin : begins) lines.push_back(lineFrom(begin));
    while (!next_.empty()) lines.push_back(lineFrom(next_.begin()->first));  // what is left are rings
    return lines;
  }

 private:
  bool isAbove(std::size_t i, std::size_t j) const { return sheet_.at(i, j) >= level_; }

  Edge edge(std::size_t i, std::size_t j, Side side) const {
    const std::size_t columns = sheet_.x.size();
    switch (side) {
      case kLower: return 2 * (i + j * columns);
      case kUpper: return 2 * (i + (j + 1) * columns);
      case kLeft: return 2 * (i + j * columns) + 1;
      case kRight: return 2 * (i + 1 + j * columns) + 1;
    }
    return 0;
  }

  void cutCell(std::size_t i, std::size_t j) {
    const double middle =
        sheet_.at(i, j) / 4 + sheet_.at(i + 1, j) / 4 + sheet_.at(i + 1, j + 1) / 4 + sheet_.at(i, j + 1) / 4;
    if (!std::isfinite(middle)) return;
    const unsigned above = isAbove(i, j) + 2U * isAbove(i + 1, j) + 4U * isAbove(i + 1, j + 1) + 8U * isAbove(i, j + 1);
    if (above == kNoneAbove || above == kAllAbove) return;
    const auto add = [&](Side from, Side to) { next_[edge(i, j, from)] = edge(i, j, to); };
    const bool middleIsAbove = middle >= level_;
    if (above == kRisingSaddle) {
      add(kLeft, middleIsAbove ? kUpper : kLower);
      add(kRight, middleIsAbove ? kLower : kUpper);
    } else if (above == kFallingSaddle) {
      add(kLower, middleIsAbove ? kLeft : kRight);
      add(kUpper, middleIsAbove ? kRight : kLeft);
    } else {
      add(kCuts[above].from, kCuts[above].to);
    }
  }

  void addPoint(ContourLine& line, Edge edge) const {
    const std::size_t columns = sheet_.x.size(), i = edge / 2 % columns, j = edge / 2 / columns;
    const bool alongX = edge % 2 == 0;
    const double first = sheet_.at(i, j), second = alongX ? sheet_.at(i + 1, j) : sheet_.at(i, j + 1);
    const double share = (level_ - first) / (second - first);
    line.x.push_back(alongX ? sheet_.x[i] + share * (sheet_.x[i + 1] - sheet_.x[i]) : sheet_.x[i]);
    line.y.push_back(alongX ? sheet_.y[j] : sheet_.y[j] + share * (sheet_.y[j + 1] - sheet_.y[j]));
  }

  ContourLine lineFrom(Edge edge) {
    ContourLine line;
    line.level = level_;
    addPoint(line, edge);
    for (auto cut = next_.find(edge); cut != next_.end(); cut = next_.find(edge)) {
      edge = cut->second;
      next_.erase(cut);
      addPoint(line, edge);
    }
    return line;
  }

  const Sheet& sheet_;
  double level_;
  std::map<Edge, Edge> next_;
};

}  // namespace

std::vector<ContourLine> contourLines(const Sheet& sheet, std::span<const double> levels) {
  std::vector<ContourLine> lines;
  for (const double level : levels)
    for (ContourLine& line : Level(sheet, level).lines()) lines.push_back(std::move(line));
  return lines;
}

}  // namespace tavimor
