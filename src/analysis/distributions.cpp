#include "analysis/distributions.h"

#include <boost/math/distributions/fisher_f.hpp>
#include <boost/math/distributions/normal.hpp>
#include <boost/math/distributions/students_t.hpp>
#include <cmath>

namespace tavimor {

namespace {

// Extreme probabilities are 0 or 1, not errors.
using Policy =
    boost::math::policies::policy<boost::math::policies::overflow_error<boost::math::policies::ignore_error>,
                                  boost::math::policies::underflow_error<boost::math::policies::ignore_error>,
                                  boost::math::policies::evaluation_error<boost::math::policies::ignore_error>,
                                  boost::math::policies::promote_double<false>>;

}  // namespace

double twoSidedStudent(double t, double freedom) {
  const boost::math::students_t_distribution<double, Policy> student(freedom);
  return 2 * boost::math::cdf(boost::math::complement(student, std::fabs(t)));
}

double studentQuantile(double level, double freedom) {
  const boost::math::students_t_distribution<double, Policy> student(freedom);
  return boost::math::quantile(boost::math::complement(student, (1 - level) / 2));
}

double upperFisher(double f, double freedomAbove, double freedomBelow) {
  const boost::math::fisher_f_distribution<double, Policy> fisher(freedomAbove, freedomBelow);
  return boost::math::cdf(boost::math::complement(fisher, f));
}

double normalQuantile(double level) {
  return boost::math::quantile(boost::math::normal_distribution<double, Policy>(), level);
}

double normalProbability(double x) { return std::erfc(-x / std::sqrt(2.0)) / 2; }

}  // namespace tavimor
