#include "problem_round_trip.h"

#include <fstream>
#include <iterator>
#include <stdexcept>

#include "formats/file_pair.h"
#include "formats/problem_reader.h"
#include "formats/problem_writer.h"
#include "runtime/bad_file.h"

namespace tavimor {

namespace {

// What is written here need not survive a power cut.
class QuickSteps : public FileSteps {
 public:
  bool flush(std::FILE*) override { return true; }
  bool flushFolder(const std::string&) override { return true; }
};

void writeBytes(const std::string& path, std::string_view bytes) {
  std::ofstream file(path, std::ios::binary);
  file << bytes;
  if (!file.flush()) throw std::runtime_error("cannot write " + path);
}

std::string bytesOfPair(const std::string& path) {
  const PairPaths pair = pairPaths(path);
  std::string bytes;
  for (const std::string& name : {pair.specification, pair.values}) {
    std::ifstream file(name, std::ios::binary);
    if (!file) throw std::runtime_error("cannot read " + name);
    bytes.append(std::istreambuf_iterator<char>(file), {});
  }
  return bytes;
}

void writeInput(std::string_view input, const PairPaths& pair) {
  const std::size_t feed = input.find('\f');
  writeBytes(pair.specification, input.substr(0, feed));
  writeBytes(pair.values, feed == std::string_view::npos ? std::string_view() : input.substr(feed + 1));
}

// The largest numbers round to fifteen digits that no double reaches, and are infinite when they are opened again.
bool holdsNumberBeyondInfinity(const std::string& bytes) {
  return bytes.find("1.79769313486232E+308") != std::string::npos;
}

std::string savedBytes(const StoredProblem& stored, const std::string& path) {
  QuickSteps steps;
  writeProblem(stored.problem, stored.fit, path, steps);
  return bytesOfPair(path);
}

}  // namespace

void checkProblemRoundTrip(std::string_view input, const std::string& path) {
  writeInput(input, pairPaths(path));
  StoredProblem stored;
  try {
    stored = readProblem(path);
  } catch (const BadFile&) {
    return;
  }
  const std::string saved = savedBytes(stored, path);
  if (savedBytes(readProblem(path), path) != saved && !holdsNumberBeyondInfinity(saved))
    throw std::logic_error("save, open, save changed the files");
}

}  // namespace tavimor
