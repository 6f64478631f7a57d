#pragma once

#include <span>
#include <vector>

#include "analysis/pair_sums.h"
#include "analysis/typed_value.h"
#include "model/spec_fields.h"

namespace tavimor {

/// One axis of a problem as the second opinion reads it.
struct AxisData {
  std::size_t count = 1;           // of values
  std::size_t terms = 1;           // degree + 1
  std::span<const double> values;  // empty where the axis is equally spaced: then value i is
  Pair lower, upper;               // lower + i * (upper - lower) / (count - 1)
  ValueRange range{};              // of the listed values
  Reading reading = Reading::AsTyped;
  Pair centre;

  bool equallySpaced() const { return values.empty(); }
};

/// A problem as the second opinion reads it. Refers to the tables of the problem.
struct ProblemData {
  Long lastVariable = 0;
  PerVariable<AxisData> axis;
  const Table4* function = nullptr;
  Reading reading = Reading::AsTyped;

  std::size_t points() const;
  std::size_t terms() const;
};

/// Where the centre of a variable is taken from: its number, or the middle between its limits, which is "*".
enum class CentreFrom { Number, Middle };

/// The middle where the field of a variable shows "*".
PerVariable<CentreFrom> centresFromFields(const AllSpecFields& fields);

/// Errors: SubscriptOutOfRange where a value list or the function is smaller than LastPoint says.
ProblemData problemData(const Problem& problem, Reading reading = Reading::AsTyped,
                        const PerVariable<CentreFrom>& centres = {});

/// How many different values an axis has, counted no further than `enough`.
std::size_t differentValues(const AxisData& axis, std::size_t enough);

}  // namespace tavimor
