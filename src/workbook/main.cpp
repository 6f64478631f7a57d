// tavimor-workbook PROBLEM.json FIGURES.json OUT.xlsx NAME [WITHIN]: writes the workbook of a fitted problem. The
// programs that offer workbooks run it; see formats/formulas/workbook_file.h.
#include <cstdio>
#include <new>

#include "formats/formulas/figures_json.h"
#include "formats/formulas/make_formula.h"
#include "formats/problem_json.h"
#include "runtime/failure.h"
#include "runtime/val.h"
#include "workbook/workbook.h"

namespace {

using namespace tavimor;

int fail(const std::string& reason) {
  std::fprintf(stderr, "tavimor-workbook: %s\n", reason.c_str());
  return 1;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 5 && argc != 6) return fail("usage: tavimor-workbook PROBLEM.json FIGURES.json OUT.xlsx NAME [WITHIN]");
  try {
    const StoredProblem read = readProblemJson(argv[1]);
    FormulaOptions options{.name = argv[4], .within = {}, .checks = 0};
    options.figures = readFiguresJson(argv[2]);
    if (argc == 6) options.within = Val(argv[5]);
    writeWorkbook(read.problem, formulaOf(read.problem, read.fit, options), argv[3]);
    return 0;
  } catch (const Failure& failure) {
    return fail(failure.report());
  } catch (const std::bad_alloc&) {
    return fail("out of memory");
  }
}
