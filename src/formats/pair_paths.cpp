#include "formats/pair_paths.h"

#include "platform/files.h"
#include "runtime/file_facts.h"
#include "runtime/run_time_error.h"

namespace tavimor {

namespace {

std::string targetOfLink(const std::string& link) {
  const std::filesystem::path path = nativePath(link);
  std::error_code error;
  const std::filesystem::path target = std::filesystem::read_symlink(path, error);
  if (error) throw fileError(error.default_error_condition().value(), link);
  return utf8Path(path.parent_path() / target);
}

}  // namespace

std::string resolvedLink(const std::string& path) {
  constexpr int mostLinks = 40;  // as many as Linux follows
  std::string target = path;
  for (int links = 0; factsOf(target).kind == FileKind::Link; ++links) {
    if (links == mostLinks) throw RunTimeError(ErrorNumber::PathFileAccess, path);
    target = targetOfLink(target);
  }
  return target;
}

PairPaths pairPaths(const std::string& path) { return {path, path + ".dat"}; }

PairPaths resolved(const PairPaths& pair) { return {resolvedLink(pair.specification), resolvedLink(pair.values)}; }

}  // namespace tavimor
