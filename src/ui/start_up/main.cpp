#include <CLI/CLI.hpp>
#include <QTimer>
#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

#include "platform/end_request.h"
#include "platform/held_signals.h"
#include "ui/controls/application.h"
#include "ui/controls/polite_end.h"
#include "ui/main_window/frmTavimor.h"
#include "ui/start_up/SubMain.h"
#include "ui/start_up/display_check.h"
#include "ui/start_up/toolkit_options.h"

namespace {

using namespace tavimor;

constexpr int kWrongUsage = 2;  // as of tavimor-cli

struct Arguments {
  std::string problem;
  std::optional<int> exitCode;  // the command line asks for text only, or is wrong
};

Arguments parse(std::vector<std::string> words) {
  CLI::App app("Fits the full tensor-product polynomial to a function tabulated on a grid, by least squares.",
               "tavimor");
  app.set_version_flag("--version", "tavimor " TAVIMOR_VERSION);
  Arguments arguments;
  app.add_option("PROBLEM", arguments.problem, "the problem to open; its values stand in PROBLEM.dat");
  try {
    std::reverse(words.begin(), words.end());  // as the parser wants them
    app.parse(words);
  } catch (const CLI::ParseError& error) {
    arguments.exitCode = app.exit(error) == 0 ? 0 : kWrongUsage;
  }
  return arguments;
}

}  // namespace

int main(int argc, char** argv) {
  reportFileSizeLimitAsError();
  const Arguments arguments = parse(withoutToolkitOptions({argv + 1, argv + argc}));
  if (arguments.exitCode) return *arguments.exitCode;
  const int endRequests = watchEndRequests();
  std::optional<DisplayCheck> displayCheck(std::in_place);
  Application application(argc, argv);
  displayCheck.reset();

  QApplication::setQuitOnLastWindowClosed(false);
  Dimension model;
  frmTavimor* window = Main(model);
  if (window == nullptr) return 0;
  application.setProblemSaver([window](const std::string& path) { window->saveCopy(path); });
  unloadOnEndRequest(*window, endRequests);
  if (!arguments.problem.empty()) QTimer::singleShot(0, window, [&] { window->openFile(arguments.problem); });
  return QApplication::exec();
}
