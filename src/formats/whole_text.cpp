#include "formats/whole_text.h"

#include <array>
#include <cerrno>

#include "platform/files.h"
#include "runtime/run_time_error.h"

namespace tavimor {

std::string wholeText(const std::string& path) {
  const FileHandle file = openForReading(path);
  if (!file) throw fileError(errno, path);
  std::string text;
  std::array<char, 65536> chunk;
  for (std::size_t count; (count = std::fread(chunk.data(), 1, chunk.size(), file.get())) > 0;)
    text.append(chunk.data(), count);
  if (std::ferror(file.get()) != 0) throw fileError(errno, path);
  return text;
}

}  // namespace tavimor
