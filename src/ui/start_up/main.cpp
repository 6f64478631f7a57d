#include <CLI/CLI.hpp>
#include <QTimer>
#include <algorithm>
#include <optional>

#include "formats/problem_writer.h"
#include "platform/held_signals.h"
#include "ui/controls/application.h"
#include "ui/controls/polite_end.h"
#include "ui/main_window/frmTavimor.h"
#include "ui/start_up/SubMain.h"

namespace {

using namespace tavimor;

constexpr int kWrongUsage = 2;  // as of tavimor-cli

struct Arguments {
  std::string problem;
  std::optional<int> exitCode;  // the command line asks for text only, or is wrong
};

Arguments parse(int argc, char** argv) {
  CLI::App app("Fits the full tensor-product polynomial to a function tabulated on a grid, by least squares.",
               "tavimor");
  app.set_version_flag("--version", "tavimor " TAVIMOR_VERSION);
  Arguments arguments;
  app.add_option("PROBLEM", arguments.problem, "the problem to open; its values stand in PROBLEM.dat");
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    arguments.exitCode = app.exit(error) == 0 ? 0 : kWrongUsage;
  }
  return arguments;
}

bool asksForTextOnly(int argc, char** argv) {
  return std::any_of(argv + 1, argv + argc,
                     [](const std::string& word) { return word == "--version" || word == "--help" || word == "-h"; });
}

}  // namespace

int main(int argc, char** argv) {
  reportFileSizeLimitAsError();
  if (asksForTextOnly(argc, argv)) return parse(argc, argv).exitCode.value_or(0);
  Application application(argc, argv);  // takes the toolkit's own options away
  const Arguments arguments = parse(argc, argv);
  if (arguments.exitCode) return *arguments.exitCode;

  QApplication::setQuitOnLastWindowClosed(false);
  Dimension model;
  application.setProblemSaver([&model](const std::string& path) { writeProblem(model, model, path); });
  frmTavimor* window = Main(model);
  if (window == nullptr) return 0;
  unloadOnEndRequest(*window);
  if (!arguments.problem.empty()) QTimer::singleShot(0, window, [&] { window->openFile(arguments.problem); });
  return QApplication::exec();
}
