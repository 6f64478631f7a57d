#pragma once

#include <string>

#include "model/fit_figures.h"

namespace tavimor {

/// Figures as the programs hand them to the one that writes workbooks: a JSON text of their own, documented nowhere.
std::string figuresJson(const FitFigures& figures);

/// Errors: BadFile for `path` where the file is no such text, and those of wholeText.
FitFigures readFiguresJson(const std::string& path);

}  // namespace tavimor
