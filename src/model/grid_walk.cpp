#include "model/grid_walk.h"

#include <algorithm>

#include "runtime/run_time_error.h"
#include "runtime/val.h"

namespace tavimor {

Long nextOnRing(Long index, Long last) { return index + 1 > last ? 0 : index + 1; }

Long previousOnRing(Long index, Long last) { return index - 1 < 0 ? last : index - 1; }

void moveToNextPoint(Dimension& model) {
  ++model.StartIdx[model.LastVar];
  for (Long k = model.LastVar; k >= 0; --k) {
    if (model.StartIdx[k] <= model.LastPoint[k]) continue;
    model.StartIdx[k] = 0;
    if (k > 0) ++model.StartIdx[k - 1];
  }
}

void moveToPreviousPoint(Dimension& model) {
  --model.StartIdx[model.LastVar];
  for (Long k = model.LastVar; k >= 0; --k) {
    if (model.StartIdx[k] >= 0) continue;
    model.StartIdx[k] = model.LastPoint[k];
    if (k > 0) --model.StartIdx[k - 1];
  }
}

double& functionAtStartIdx(Dimension& model) {
  return model.F(model.StartIdx[0], model.StartIdx[1], model.StartIdx[2], model.StartIdx[3]);
}

std::optional<PerVariable<Long>> gridPointFromText(const Dimension& model, std::string_view text) {
  PerVariable<Long> point{};
  std::size_t begin = 0;
  for (Long k = 0; k <= model.LastVar; ++k) {
    if (begin > text.size()) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    const std::size_t end = std::min(text.find(',', begin), text.size());
    const double index = Val(text.substr(begin, end - begin));
    if (index > model.LastPoint[k]) return std::nullopt;
    point[k] = toLong(index);
    begin = end + 1;
  }
  return point;
}

}  // namespace tavimor
