#pragma once

#include <span>

#include "model/table4.h"

namespace tavimor {

/// A strip of a table: the points of neighbouring first indices. Turned, the points of each first index follow one
/// another, the last index fastest, as a file lists them and the statistics add them up. The width is that of the
/// turned points divided by the points of one first index.

/// As many first indices as a line of the cache holds.
inline constexpr std::size_t kStripWidth = 8;

void turnStrip(const Table4& table, std::size_t first, std::span<double> turned);
void putStrip(std::span<const double> turned, std::size_t first, Table4& table);

}  // namespace tavimor
