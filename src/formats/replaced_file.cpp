#include "formats/replaced_file.h"

#include <cerrno>

#include "formats/pair_paths.h"
#include "formats/work_names.h"
#include "platform/held_signals.h"
#include "runtime/file_facts.h"
#include "runtime/run_time_error.h"

namespace tavimor {

namespace {

bool writeNew(const std::string& path, const std::string& target, std::string_view bytes, FileSteps& steps) {
  const bool isFirst = factsOf(target).kind == FileKind::Missing;
  FileHandle file = steps.create(path, isFirst ? Access::Usual : Access::Private);
  return file && steps.write(file.get(), bytes) && steps.takeAttributes(file.get(), target) &&
         steps.flush(file.get()) && steps.close(std::move(file));
}

}  // namespace

void requireReplaceable(const std::string& path) {
  const FileKind kind = factsOf(path).kind;
  if (kind == FileKind::Missing) return;
  if (kind != FileKind::Regular) throw RunTimeError(ErrorNumber::PathFileAccess, path);
  if (!mayBeWritten(path)) throw fileError(errno, path);
}

std::string folderOf(const std::string& path) {
  const std::string parent = utf8Path(nativePath(path).parent_path());
  return parent.empty() ? "." : parent;
}

void replaceFile(const std::string& path, std::string_view bytes, FileSteps& steps) {
  const HeldSignals heldSignals;
  const std::string target = resolvedLink(path);
  requireReplaceable(target);
  const std::string written = ownName(target);
  if (writeNew(written, target, bytes, steps) && steps.replace(written, target)) {
    steps.flushFolder(folderOf(target));
    return;
  }
  const int reason = errno;
  steps.remove(written);
  throw fileError(reason, path);
}

}  // namespace tavimor
