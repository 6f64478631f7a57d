#pragma once

#include <string>
#include <vector>

namespace tavimor {

/// What the options of a command ask for, beside what they stand behind.
struct CommandOptions {
  std::string degrees;  // "2,1": the degrees in the place of the problem's; empty: those
  std::string centres;  // "0,*": likewise
  std::string most;     // "9,9": the largest degrees of a map; empty: two more than the problem's
  std::string level = "0.95";
  bool precise = false;   // list and save the precise coefficients
  bool noCheck = false;   // no second opinion
  bool asStored = false;  // the doubles, and not what was typed
  bool json = false;
  bool interval = false;  // of estimates
  bool all = false;       // combinations of degrees that others beat, too
};

}  // namespace tavimor
