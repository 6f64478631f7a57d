#include "script/intrinsics.h"

#include <array>
#include <cmath>

#include "runtime/checked_arithmetic.h"
#include "runtime/run_time_error.h"

namespace tavimor {

namespace {

constexpr Long kMostDecimals = 22;

double sign(double x) { return static_cast<double>((x > 0.0) - (x < 0.0)); }

constexpr std::array kIntrinsics = {
    Intrinsic{"Abs", [](double x) { return std::fabs(x); }},
    Intrinsic{"Atn", [](double x) { return std::atan(x); }},
    Intrinsic{"Cos", [](double x) { return std::cos(x); }},
    Intrinsic{"Exp", exponential},
    Intrinsic{"Fix", [](double x) { return std::trunc(x); }},
    Intrinsic{"Int", [](double x) { return std::floor(x); }},
    Intrinsic{"Log", logarithm},
    Intrinsic{"Sgn", sign},
    Intrinsic{"Sin", [](double x) { return std::sin(x); }},
    Intrinsic{"Sqr", squareRoot},
    Intrinsic{"Tan", [](double x) { return std::tan(x); }},
};

}  // namespace

std::span<const Intrinsic> intrinsics() { return kIntrinsics; }

double roundToDecimals(double x, Long decimals) {
  if (decimals < 0 || decimals > kMostDecimals) throw RunTimeError(ErrorNumber::InvalidCall);
  const double power = std::pow(10.0, decimals);
  const double scaled = x * power;
  return std::isfinite(scaled) ? std::nearbyint(scaled) / power : x;
}

}  // namespace tavimor
