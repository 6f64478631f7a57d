#include "model/problem.h"

namespace tavimor {

void ClearVariable(Problem& problem, Long v) {
  problem.VarName[v].clear();
  problem.LowerLimit[v] = problem.UpperLimit[v] = problem.Centre[v] = problem.Step[v] = problem.Period[v] = 0.0;
  problem.Degree[v] = problem.LastPoint[v] = problem.AddCount[v] = 0;
  problem.EquallySpaced[v] = problem.ValuesGiven[v] = problem.PeriodFlag[v] = problem.TrigFlag[v] = false;
}

}  // namespace tavimor
