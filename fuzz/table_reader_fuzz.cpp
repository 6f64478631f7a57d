// The entry point of libFuzzer for tables that become problems. Run it on the corpus with
//   build/fuzz/bin/table_reader_fuzz -malloc_limit_mb=64 -max_len=4096 FOLDER_FOR_NEW_INPUTS fuzz/table_corpus
// What is found goes to fuzz/table_corpus, which the tests run through as well.
#include <cstddef>
#include <cstdint>

#include "table_import_check.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  tavimor::checkTableImport({reinterpret_cast<const char*>(bytes), size});
  return 0;
}
