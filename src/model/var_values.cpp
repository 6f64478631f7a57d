#include "model/var_values.h"

#include <iterator>
#include <new>

#include "platform/memory.h"
#include "runtime/run_time_error.h"

namespace tavimor {

namespace {

bool isVariable(Long v) { return v >= 0 && v < kMaxVariables; }

double& value(Dimension& model, Long v, Long i) {
  std::vector<double>& list = valueList(model, v);
  if (i < 0 || i >= std::ssize(list)) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
  return list[i];
}

void copySlice(Table4& table, Long axis, Long from, Long to) {
  PerVariable<Long> end = table.last();
  end[axis] = 0;
  PerVariable<Long> i{};
  for (i[3] = 0; i[3] <= end[3]; ++i[3])
    for (i[2] = 0; i[2] <= end[2]; ++i[2])
      for (i[1] = 0; i[1] <= end[1]; ++i[1])
        for (i[0] = 0; i[0] <= end[0]; ++i[0]) {
          PerVariable<Long> source = i, target = i;
          source[axis] = from;
          target[axis] = to;
          table(target[0], target[1], target[2], target[3]) = table(source[0], source[1], source[2], source[3]);
        }
}

}  // namespace

std::vector<double>& valueList(Dimension& model, Long v) {
  switch (v) {
    case 0: return model.X0;
    case 1: return model.X1;
    case 2: return model.X2;
    case 3: return model.X3;
    default: throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
  }
}

const std::vector<double>& valueList(const Dimension& model, Long v) {
  return valueList(const_cast<Dimension&>(model), v);
}

void GetVarX(Dimension& model, Long v, Long i) {
  if (isVariable(v)) model.VarX = value(model, v, i);
}

void SetVarX(Dimension& model, Long v, Long i) {
  if (isVariable(v)) value(model, v, i) = model.VarX;
}

void ResizeVarValues(Dimension& model, Long v) {
  if (!isVariable(v)) return;
  const Long last = model.LastPoint[v];
  if (last < 0) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
  const std::size_t count = static_cast<std::size_t>(last) + 1;
  std::vector<double>& values = valueList(model, v);
  try {
    values.reserve(count);
    preferLargePages(values.data(), count * sizeof(double));  // before they are touched
    values.resize(count);
  } catch (const std::bad_alloc&) {
    throw RunTimeError(ErrorNumber::OutOfMemory);
  }
}

void generateSpacedValues(Dimension& model, Long v) {
  ResizeVarValues(model, v);
  for (Long i = 0; i <= model.LastPoint[v]; ++i) {
    model.VarX = model.LowerLimit[v] + static_cast<double>(i) * model.Step[v];
    SetVarX(model, v, i);
  }
}

void giveDefaultValues(Dimension& model, Long v) {
  bool& given = model.ValuesGiven[v];
  if (given) return;
  given = true;
  generateSpacedValues(model, v);
}

void deleteValue(Dimension& model, Long v, Long r) {
  if (!isVariable(v)) return;
  Long& last = model.LastPoint[v];
  if (last == 0) return;
  value(model, v, r) = value(model, v, last);
  copySlice(model.F, v, last, r);
  --last;
  ResizeVarValues(model, v);
  model.F.resizeKeeping(model.LastPoint);
}

}  // namespace tavimor
