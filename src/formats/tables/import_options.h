#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "formats/tables/table_format.h"
#include "runtime/long.h"

namespace tavimor {

enum class Heading { Find, Yes, No };

/// A list has a point a line; a cross table the values of one variable in its first row, those of another one in its
/// first column, and the function between.
enum class TableForm { List, Cross };

/// What to do where several lines give one point.
enum class Duplicates { Refuse, Mean };

/// What to do where points of the grid miss: Shrink leaves out values until it is full.
enum class Gaps { Refuse, Shrink };

/// What is told of a table; everything that is not told is found.
struct ImportOptions {
  std::vector<std::string> columns;  // names or numbers, from 1 on; the last one is the function
  std::vector<Long> degrees;         // one for each variable, or one for all; without any, 1
  std::vector<std::string> centres;  // likewise, "*" for the middle of the interval; without any, that
  std::optional<char> separator;
  std::optional<DecimalMark> mark;
  Heading heading = Heading::Find;
  std::optional<TableForm> form;
  double tolerance = 1E-9;  // values of a variable that differ by no more than this part of its range are one
  Duplicates duplicates = Duplicates::Refuse;
  Gaps gaps = Gaps::Refuse;
  std::function<void(double)> progress = [](double) {};  // told the part that is done, now and then
};

}  // namespace tavimor
