#include "engine/right_hand_side.h"

#include "engine/gram.h"
#include "runtime/run_time_error.h"

namespace tavimor {

namespace {

using Deviations = PerVariable<std::vector<double>>;

// The loops that define the sums; the fast code gives the same bits.
void addPoint(Table4& coef, const PerVariable<double>& d, double f) {
  const PerVariable<Long>& degree = coef.last();
  double* sum = coef.data();
  double p3 = f;
  for (Long j3 = 0; j3 <= degree[3]; ++j3) {
    double p2 = p3;
    for (Long j2 = 0; j2 <= degree[2]; ++j2) {
      double p1 = p2;
      for (Long j1 = 0; j1 <= degree[1]; ++j1) {
        double p0 = p1;
        for (Long j0 = 0; j0 <= degree[0]; ++j0) {
          *sum++ += p0;
          p0 = p0 * d[0];
        }
        p1 = p1 * d[1];
      }
      p2 = p2 * d[2];
    }
    p3 = p3 * d[3];
  }
}

void accumulatePlainly(const Table4& f, const Deviations& d, Table4& coef) {
  const double* value = f.data();
  for (const double d3 : d[3])
    for (const double d2 : d[2])
      for (const double d1 : d[1])
        for (const double d0 : d[0]) addPoint(coef, {d0, d1, d2, d3}, *value++);
}

}  // namespace

void accumulateRightHandSide(Dimension& model, const ComputeOptions&) {
  if (model.F.last() != model.LastPoint) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
  Deviations d;
  for (Long k = 0; k < kMaxVariables; ++k) d[k] = deviations(model, k);
  model.Coef.redim(model.Degree);
  accumulatePlainly(model.F, d, model.Coef);
}

}  // namespace tavimor
