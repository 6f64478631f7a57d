#include "runtime/file_facts.h"

#include <cerrno>

#include "runtime/run_time_error.h"

namespace tavimor {

FileFacts factsOf(const std::string& path, LastLink lastLink) {
  FileFacts facts;
  if (!queryFile(path, lastLink, facts)) throw fileError(errno, path);
  return facts;
}

}  // namespace tavimor
