#include "cli/import_arguments.h"

namespace tavimor {

namespace {

// One word with commas in it: the words behind it are not its own.
template <class Items>
void addList(CLI::App& command, const char* name, Items& items, const char* type, const char* does) {
  command.add_option(name, items, does)->delimiter(',')->allow_extra_args(false)->option_text(type);
}

}  // namespace

void addImportOptions(CLI::App& command, ImportArguments& arguments) {
  addList(command, "--columns", arguments.columns, "X,Y,F", "names or numbers of the columns, the function last");
  addList(command, "--degree", arguments.degrees, "D,...", "the degree of each variable, or one for all (1)");
  addList(command, "--centre", arguments.centres, "C,...", "the centre of each variable, or one for all (*)");
  command
      .add_option("--separator", arguments.separator,
                  "what separates columns: comma, semicolon, tab, blank, or a character")
      ->option_text("S");
  command.add_flag("--decimal-comma", arguments.decimalComma, "numbers have a decimal comma");
  command.add_option("--header", arguments.header, "whether the first line is a heading")
      ->check(CLI::IsMember({"yes", "no"}))
      ->option_text("yes|no");
  command.add_option("--form", arguments.form, "a list of points or a cross table")
      ->check(CLI::IsMember({"list", "cross"}))
      ->option_text("list|cross");
  command.add_option("--tolerance", arguments.tolerance, "values that differ by no more of the range are one (1E-9)")
      ->check(CLI::Range(0.0, 1.0))
      ->option_text("T");
  command.add_option("--duplicates", arguments.duplicates, "what to do with points that stand twice")
      ->check(CLI::IsMember({"refuse", "mean"}))
      ->option_text("refuse|mean");
  command.add_option("--gaps", arguments.gaps, "what to do with a grid that is not full")
      ->check(CLI::IsMember({"refuse", "shrink"}))
      ->option_text("refuse|shrink");
}

}  // namespace tavimor
