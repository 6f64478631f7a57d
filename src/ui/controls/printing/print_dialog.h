#pragma once

#include "ui/controls/dialog_end.h"

class QPrinter;

namespace tavimor {

/// Asks for printer or PDF file, paper, copies and pages; on a Windows without printers for a PDF file alone. A call
/// that is called off leaves the printer as it was.
DialogEnd choosePrinter(QPrinter& printer);

}  // namespace tavimor
