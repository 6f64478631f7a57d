#include "model/table_strips.h"

#include "platform/memory.h"

namespace tavimor {

namespace {

// Calls body(offset) for the points whose first index is 0, the last index fastest.
template <class Body>
void forOuterAxes(const Table4& table, Body body) {
  const std::size_t n1 = table.extent(1), n2 = table.extent(2), n3 = table.extent(3);
  for (std::size_t i1 = 0; i1 < n1; ++i1)
    for (std::size_t i2 = 0; i2 < n2; ++i2)
      for (std::size_t i3 = 0; i3 < n3; ++i3) body(table.stride(1) * (i1 + n1 * (i2 + n2 * i3)));
}

}  // namespace

// The next strip lies beside this one in memory: it is asked for at the same time.
void turnStrip(const Table4& table, std::size_t first, std::span<double> turned) {
  const std::size_t length = table.size() / table.extent(0), width = turned.size() / length;
  double* to = turned.data();
  forOuterAxes(table, [&](std::size_t offset) {
    const double* from = table.data() + offset + first;
    prefetch(from + kStripWidth);
    for (std::size_t i = 0; i < width; ++i) to[i * length] = from[i];
    ++to;
  });
}

void putStrip(std::span<const double> turned, std::size_t first, Table4& table) {
  const std::size_t length = table.size() / table.extent(0), width = turned.size() / length;
  const double* from = turned.data();
  forOuterAxes(table, [&](std::size_t offset) {
    double* to = table.data() + offset + first;
    prefetch(to + kStripWidth);
    for (std::size_t i = 0; i < width; ++i) to[i] = from[i * length];
    ++from;
  });
}

}  // namespace tavimor
