// tavimor-workbook PROBLEM.json FIGURES.json OUT.xlsx NAME [WITHIN]: writes the workbook of a fitted problem. The
// programs that offer workbooks run it; see formats/formulas/workbook_file.h.
#include <cstdio>
#include <filesystem>
#include <new>

#include "formats/formulas/figures_json.h"
#include "formats/formulas/make_formula.h"
#include "formats/problem_json.h"
#include "platform/files.h"
#include "platform/program_words.h"
#include "runtime/failure.h"
#include "runtime/val.h"
#include "workbook/workbook.h"

namespace {

using namespace tavimor;

// The path for a library that takes paths in the system's code page: its name alone, with its folder as the working
// folder, has plain characters.
std::string nameInWorkingFolder(const std::string& path) {
  const std::filesystem::path file = nativePath(path);
  std::error_code error;
  if (file.has_parent_path()) std::filesystem::current_path(file.parent_path(), error);
  return error ? path : utf8Path(file.filename());
}

int fail(const std::string& reason) {
  std::fprintf(stderr, "tavimor-workbook: %s\n", reason.c_str());
  return 1;
}

}  // namespace

int main(int argc, char** argv) {
  const std::vector<std::string> words = programWords(argc, argv);
  if (words.size() != 4 && words.size() != 5)
    return fail("usage: tavimor-workbook PROBLEM.json FIGURES.json OUT.xlsx NAME [WITHIN]");
  try {
    const StoredProblem read = readProblemJson(words[0]);
    FormulaOptions options{.name = words[3], .within = {}, .checks = 0};
    options.figures = readFiguresJson(words[1]);
    if (words.size() == 5) options.within = Val(words[4]);
    writeWorkbook(read.problem, formulaOf(read.problem, read.fit, options), nameInWorkingFolder(words[2]));
    return 0;
  } catch (const Failure& failure) {
    return fail(failure.report());
  } catch (const std::bad_alloc&) {
    return fail("out of memory");
  }
}
