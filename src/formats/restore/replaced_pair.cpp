#include "formats/restore/replaced_pair.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <filesystem>
#include <string_view>
#include <vector>

#include "formats/problem_writer.h"
#include "formats/readable_pair.h"
#include "runtime/file_facts.h"
#include "runtime/run_time_error.h"

namespace tavimor {

namespace fs = std::filesystem;

namespace {

using Chunk = std::array<char, 65536>;

std::string_view read(std::FILE* file, Chunk& chunk) {
  return {chunk.data(), std::fread(chunk.data(), 1, chunk.size(), file)};
}

void copyTo(const std::string& path, std::FILE* from, FileSteps& steps) {
  FileHandle to = steps.create(path, Access::Private);
  bool isWritten = to != nullptr;
  Chunk chunk;
  for (std::string_view bytes; isWritten && !(bytes = read(from, chunk)).empty();)
    isWritten = steps.write(to.get(), bytes);
  if (!isWritten || std::ferror(from) != 0 || !steps.flush(to.get()) || !steps.close(std::move(to)))
    throw fileError(errno, path);
}

bool haveSameBytes(const std::string& path, std::FILE* other) {
  const FileHandle file = openForReading(path);
  if (!file) return false;
  Chunk chunk, otherChunk;
  for (;;) {
    const std::string_view bytes = read(file.get(), chunk);
    if (bytes != read(other, otherChunk)) return false;
    if (bytes.empty()) return true;
  }
}

// Fowler, Noll, Vo: a name for a path of any length and any characters.
std::string nameFor(const std::string& path) {
  std::uint64_t hash = 14695981039346656037u;
  for (const unsigned char byte : path) hash = (hash ^ byte) * 1099511628211u;
  std::string name;
  for (int digit = 0; digit < 16; ++digit, hash >>= 4) name += "0123456789abcdef"[hash & 15];
  return name;
}

std::string absolutePath(const std::string& path) {
  std::error_code error;
  const fs::path whole = fs::weakly_canonical(nativePath(path), error);
  return error ? path : utf8Path(whole);
}

// Sorts like the moments.
std::string timeName() {
  const auto ticks = std::chrono::system_clock::now().time_since_epoch();
  const std::string digits = std::to_string(std::chrono::duration_cast<std::chrono::nanoseconds>(ticks).count());
  return std::string(20 - std::min<std::size_t>(digits.size(), 20), '0') + digits;
}

std::vector<fs::path> foldersIn(const fs::path& folder) {
  std::vector<fs::path> found;
  std::error_code error, unknown;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error))
    if (fs::is_directory(entry->symlink_status(unknown))) found.push_back(entry->path());
  return found;
}

std::uint64_t bytesIn(const fs::path& folder) {
  std::uint64_t bytes = 0;
  std::error_code error, unknown;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error))
    if (const std::uintmax_t size = entry->file_size(unknown); !unknown) bytes += size;
  return bytes;
}

bool isNewer(const fs::path& a, const fs::path& b) { return a.filename() > b.filename(); }

// The last ones of a file; the others go.
std::vector<fs::path> lastOf(const fs::path& file, std::size_t count) {
  std::vector<fs::path> pairs = foldersIn(file);
  std::sort(pairs.begin(), pairs.end(), isNewer);
  for (std::size_t n = count; n < pairs.size(); ++n) removeFolder(utf8Path(pairs[n]));
  pairs.resize(std::min(count, pairs.size()));
  return pairs;
}

void removeWhatIsTooMuch(const std::string& replaced, const ReplacedLimits& limits) {
  std::vector<fs::path> all;
  for (const fs::path& file : foldersIn(nativePath(replaced)))
    for (const fs::path& pair : lastOf(file, limits.perFile)) all.push_back(pair);
  std::sort(all.begin(), all.end(), isNewer);
  std::uint64_t bytes = 0;
  for (const fs::path& pair : all)
    if ((bytes += bytesIn(pair)) > limits.bytes) removeFolder(utf8Path(pair));
}

template <class Step>
std::optional<std::string> refusalOf(Step step) {
  try {
    step();
    return std::nullopt;
  } catch (const Failure& failure) {
    return failure.path() + ": " + failure.report();
  }
}

}  // namespace

std::optional<std::string> writeKeepingReplaced(const Problem& problem, const Fit& fit, const std::string& path,
                                                KeptSession& session, const Progress& progress) {
  std::optional<ReplacedPair> replaced;
  const auto refusal = refusalOf([&] { replaced.emplace(session, path); });
  writeProblem(problem, fit, path, systemFileSteps(), progress);
  return replaced ? refusalOf([&] { replaced->keep(); }) : refusal;
}

std::string replacedFolder(const std::string& stateFolder) { return stateFolder + "/replaced"; }

std::string replacedFolderOf(const std::string& stateFolder, const std::string& path) {
  return replacedFolder(stateFolder) + '/' + nameFor(absolutePath(path));
}

ReplacedPair::ReplacedPair(KeptSession& session, const std::string& path) : session_(session), path_(path) {
  if (factsOf(path, LastLink::Follow).kind != FileKind::Regular) return;
  const OpenPair pair = openPair(path);
  if (!pair.specification || !pair.values) return;
  const std::string copy = session.folder() + "/replaced";
  removeFolder(copy);
  requirePrivateFolder(copy);
  copy_ = copy;
  try {
    const PairPaths target = pairPaths(keptPair(copy));
    copyTo(target.specification, pair.specification.get(), session.steps());
    copyTo(target.values, pair.values.get(), session.steps());
    describeKeptPair(absolutePath(path), copy, secondsNow(), session.steps());
  } catch (...) {
    removeFolder(copy);
    throw;
  }
}

ReplacedPair::~ReplacedPair() {
  if (!copy_.empty()) removeFolder(copy_);
}

void ReplacedPair::keep(const ReplacedLimits& limits) {
  if (copy_.empty()) return;
  const OpenPair now = openPair(path_);
  const PairPaths copied = pairPaths(keptPair(copy_));
  if (now.specification && now.values && haveSameBytes(copied.specification, now.specification.get()) &&
      haveSameBytes(copied.values, now.values.get()))
    return;
  const std::string file = replacedFolderOf(session_.stateFolder(), path_);
  requirePrivateFolder(replacedFolder(session_.stateFolder()));
  requirePrivateFolder(file);
  const std::string place = file + '/' + timeName();
  if (!session_.steps().replace(copy_, place)) throw fileError(errno, place);
  copy_.clear();
  removeWhatIsTooMuch(replacedFolder(session_.stateFolder()), limits);
}

}  // namespace tavimor
