#include "model/delete_value.h"

#include "model/grid_indices.h"
#include "model/value_lists.h"

namespace tavimor {

namespace {

void copySlice(Table4& table, Long axis, Long from, Long to) {
  PerVariable<Long> slice = table.last();
  slice[axis] = 0;
  forEachIndex(slice, [&](PerVariable<Long> index) {
    index[axis] = from;
    const double value = table(index);
    index[axis] = to;
    table(index) = value;
  });
}

}  // namespace

void deleteValue(Problem& problem, Long v, Long r) {
  if (v < 0 || v >= kMaxVariables) return;
  Long& last = problem.LastPoint[v];
  if (last == 0) return;
  valueOf(problem, v, r) = valueOf(problem, v, last);
  copySlice(problem.F, v, last, r);
  --last;
  ResizeVarValues(problem, v);
  problem.F.resizeKeeping(problem.LastPoint);
}

}  // namespace tavimor
