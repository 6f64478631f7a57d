#include "formats/formulas/workbook_file.h"

#include <filesystem>
#include <random>

#include "formats/formulas/figures_json.h"
#include "formats/formulas/number_literal.h"
#include "formats/problem_json.h"
#include "formats/replaced_file.h"
#include "formats/whole_text.h"
#include "platform/helper_program.h"
#include "runtime/run_time_error.h"

namespace tavimor {

namespace fs = std::filesystem;

namespace {

constexpr const char* kProgram = "tavimor-workbook";

// A folder for what passes between the programs, gone afterwards.
class PassageFolder {
 public:
  PassageFolder() {
    try {
      std::random_device random;
      do path_ = fs::temp_directory_path() / ("tavimor-workbook-" + std::to_string(random()));
      while (!fs::create_directory(path_));
      fs::permissions(path_, fs::perms::owner_all);
    } catch (const fs::filesystem_error& error) {
      throw fileError(error.code().value(), utf8Path(error.path1()));
    }
  }
  PassageFolder(const PassageFolder&) = delete;
  PassageFolder& operator=(const PassageFolder&) = delete;
  ~PassageFolder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
  }

  std::string file(const char* name) const { return utf8Path(path_ / name); }

 private:
  fs::path path_;
};

}  // namespace

std::string workbookBytes(const Problem& problem, const Fit& fit, const FormulaOptions& options) {
  const auto program = helperProgram(kProgram);
  if (!program) throw RunTimeError(ErrorNumber::FileNotFound, kProgram);
  const PassageFolder folder;
  const std::string json = folder.file("problem.json");
  const std::string figures = folder.file("figures.json");
  const std::string workbook = folder.file("workbook.xlsx");
  replaceFile(json, problemJson(problem, fit));
  replaceFile(figures, figuresJson(options.figures));
  std::vector<std::string> arguments = {json, figures, workbook, options.name};
  if (options.within) arguments.push_back(decimalLiteral(*options.within));
  if (runProgram(*program, arguments) != 0) throw RunTimeError(ErrorNumber::InvalidCall, kProgram);
  return wholeText(workbook);
}

}  // namespace tavimor
