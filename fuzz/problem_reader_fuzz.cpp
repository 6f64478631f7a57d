// The entry point of libFuzzer for the reader of problem files. Run it on the corpus with
//   build/fuzz/bin/problem_reader_fuzz -malloc_limit_mb=64 -max_len=4096 FOLDER_FOR_NEW_INPUTS fuzz/corpus
// so that an input for which more memory is taken than its few bytes justify is a finding too. TMPDIR says where the
// files go; a folder in memory is quickest. What is found goes to fuzz/corpus, which the tests run through as well.
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>

#include "problem_round_trip.h"

namespace {

std::string pathInFolderOfThisProcess() {
  const auto folder = std::filesystem::temp_directory_path() / ("tavimor-fuzz-" + std::to_string(getpid()));
  std::filesystem::create_directory(folder);
  return (folder / "p").string();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  static const std::string path = pathInFolderOfThisProcess();
  tavimor::checkProblemRoundTrip({reinterpret_cast<const char*>(bytes), size}, path);
  return 0;
}
