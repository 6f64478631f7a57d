#include "engine/resume_next.h"

namespace tavimor {

bool isResumable(ErrorNumber number) {
  return number == ErrorNumber::InvalidCall || number == ErrorNumber::Overflow ||
         number == ErrorNumber::DivisionByZero || number == ErrorNumber::ScriptReported;
}

}  // namespace tavimor
