#include "engine/evaluate.h"

#include <cmath>

namespace tavimor {

namespace {

Long& index(Dimension& model, int k) {
  Long* const indices[] = {&model.I0, &model.I1, &model.I2, &model.I3};
  return *indices[k];
}

double level(Dimension& model, int k);

double inner(Dimension& model, int k) {
  return k == 0 ? model.Coef(model.I0, model.I1, model.I2, model.I3) : level(model, k - 1);
}

double powerLevel(Dimension& model, int k) {
  double sum = 0.0;
  for (Long& i = index(model, k) = model.Degree[k]; i >= 0; --i) sum = sum * model.t[k] + inner(model, k);
  return sum;
}

double trigLevel(Dimension& model, int k) {
  double sum = 0.0;
  double angle = 0.0;
  Long& i = index(model, k) = 0;
  while (i <= model.Degree[k] - 1) {
    sum = inner(model, k) * std::cos(angle) + sum;
    angle = angle + model.t[k];
    ++i;
    sum = inner(model, k) * std::sin(angle) + sum;
    ++i;
  }
  if (i == model.Degree[k]) sum = inner(model, k) * std::cos(angle) + sum;
  return sum;
}

double level(Dimension& model, int k) { return model.TrigFlag[k] ? trigLevel(model, k) : powerLevel(model, k); }

}  // namespace

void Evaluate(Dimension& model) {
  if (model.FitDone) model.S3 = level(model, kMaxVariables - 1);
}

}  // namespace tavimor
