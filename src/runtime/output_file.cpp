#include "runtime/output_file.h"

#include <cerrno>

#include "runtime/number_text.h"
#include "runtime/run_time_error.h"

namespace tavimor {

namespace {
constexpr std::size_t kPendingBytes = std::size_t{64} * 1024;
}  // namespace

OutputFile::OutputFile(const std::string& path, FileSteps& steps, const std::string& target, Access access)
    : path_(path), target_(target.empty() ? path : target), steps_(steps) {
  file_ = steps_.create(path_, access);
  if (!file_) throw fileError(errno, target_);
}

void OutputFile::print(double value) {
  pending_ += printedNumber(value);
  endLine();
}

void OutputFile::printLines(std::string_view lines) {
  pending_ += lines;
  handOverWhenFull();
}

void OutputFile::print(Long value) {
  pending_ += printedNumber(value);
  endLine();
}

void OutputFile::takeAttributesOf(const std::string& path) {
  if (!steps_.takeAttributes(file_.get(), path)) throw fileError(errno, target_);
}

void OutputFile::finish() {
  handOver();
  if (!steps_.flush(file_.get())) throw fileError(errno, target_);
  if (!steps_.close(std::move(file_))) throw fileError(errno, target_);
}

void OutputFile::appendItem(std::string_view text) {
  pending_ += '"';
  pending_ += text;
  pending_ += "\",";
}

void OutputFile::appendItem(bool value) { pending_ += value ? "#TRUE#," : "#FALSE#,"; }

void OutputFile::appendItem(double value) { pending_ += writtenNumber(value) + ','; }

void OutputFile::appendItem(Long value) { pending_ += writtenNumber(value) + ','; }

void OutputFile::endRecord() {
  pending_.pop_back();  // the comma behind the last item
  endLine();
}

void OutputFile::endLine() {
  pending_ += "\r\n";
  handOverWhenFull();
}

void OutputFile::handOverWhenFull() {
  if (pending_.size() >= kPendingBytes) handOver();
}

void OutputFile::handOver() {
  if (!steps_.write(file_.get(), pending_)) throw fileError(errno, target_);
  pending_.clear();
}

}  // namespace tavimor
