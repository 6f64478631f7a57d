#include "formats/readable_pair.h"

#include <cerrno>
#include <chrono>
#include <optional>
#include <thread>

#include "formats/work_names.h"
#include "runtime/file_facts.h"
#include "runtime/run_time_error.h"

namespace tavimor {

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr auto kPatience = 5s;
constexpr auto kPause = 1ms;

bool isFile(const std::string& path) { return factsOf(path).kind == FileKind::Regular; }

bool isStill(const FileHandle& file, const std::string& path) {
  const FileFacts there = factsOf(path, LastLink::Follow);
  if (!file) return there.kind == FileKind::Missing;
  FileFacts facts;
  if (!queryFile(file.get(), facts)) throw fileError(errno, path);
  return facts.isSameFileAs(there);
}

// A path where nothing stands is null, and everything else that cannot be read an error.
FileHandle openRegularFile(const std::string& path) {
  FileHandle file = openForReading(path);
  if (!file && errno == ENOENT) return nullptr;
  if (!file) throw fileError(errno, path);
  FileFacts facts;
  if (!queryFile(file.get(), facts)) throw fileError(errno, path);
  if (facts.kind != FileKind::Regular) throw fileError(EISDIR, path);
  return file;
}

// The order makes this safe, for a save goes from state to state while it is asked. The values file that was opened is
// in place both times; had a save put it there beside an old specification, one of the two states in which that is
// possible would have been seen, or the specification would be another one by now.
bool areStillThePair(const OpenPair& pair, const std::string& path) {
  return readablePair(path) == pair.paths && isStill(pair.values, pair.paths.values) &&
         isStill(pair.specification, pair.paths.specification);
}

// Nothing, where a save has changed the pair meanwhile.
std::optional<OpenPair> tryToOpen(const std::string& path) {
  OpenPair pair{readablePair(path), nullptr, nullptr};
  pair.specification = openRegularFile(pair.paths.specification);
  pair.values = openRegularFile(pair.paths.values);
  if (!areStillThePair(pair, path)) return std::nullopt;
  return pair;
}

}  // namespace

PairPaths readablePair(const std::string& path) {
  PairPaths pair = pairPaths(path);
  const PairPaths target = resolved(pair);
  // In this order: a save that goes back passes from the first state to the second, and must not slip through between.
  const bool newValuesAreInPlace = isFile(newName(target.specification)) && !isFile(newName(target.values));
  if (isFile(backName(target.values)))
    pair.values = backName(target.values);
  else if (newValuesAreInPlace)
    pair.specification = newName(target.specification);
  return pair;
}

OpenPair openPair(const std::string& path) {
  const auto deadline = Clock::now() + kPatience;
  while (Clock::now() < deadline) {
    if (std::optional<OpenPair> pair = tryToOpen(path)) return std::move(*pair);
    std::this_thread::sleep_for(kPause);
  }
  throw RunTimeError(ErrorNumber::FileAlreadyOpen, path, "it is being saved again and again");
}

}  // namespace tavimor
