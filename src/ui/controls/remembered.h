#pragma once

#include <QSettings>

namespace tavimor {

/// What the windows remember from run to run, in the file windows.ini of the state folder, which is the user's alone.
/// Where it cannot be written nothing is remembered, and nobody is bothered.
class Remembered : public QSettings {
 public:
  Remembered();
};

}  // namespace tavimor
