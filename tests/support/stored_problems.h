#pragma once

#include <random>
#include <vector>

#include "model/Dimension.h"

namespace tavimor::test {

/// A problem with the given numbers of values, one per variable, equally spaced from 0 on in steps of 1, degrees 1 and
/// a function without two equal entries. The names are x, y, z and w.
Dimension gridProblem(const std::vector<Long>& counts);

/// Gives the problem a fit: coefficients and statistics that are all different, of no meaning.
void pretendFit(Dimension& model);

/// A problem whose every stored entry is random: sizes, names, numbers of all magnitudes, with or without a fit.
Dimension randomProblem(std::mt19937_64& random);

/// A problem with a fit whose every number, in both files, is this mark, the counts excepted: a pair that is mixed from
/// two of them shows both marks.
Dimension markedProblem(double mark);

/// The function's values with the last index fastest, as files hold them.
std::vector<double> valuesLastIndexFastest(const Table4& table);

/// All of the problem that files hold, compared bit for bit; the test fails where it differs.
void expectSameProblem(const Dimension& got, const Dimension& wanted);

}  // namespace tavimor::test
