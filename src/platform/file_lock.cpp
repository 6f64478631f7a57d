#include "platform/file_lock.h"

#include <array>
#include <cerrno>
#include <string_view>

#ifdef _WIN32
#include <windows.h>

#include "platform/windows_error.h"
#else
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace tavimor {

namespace {
constexpr const char* kUnknownHolder = "another program";
}

#ifdef _WIN32

// What stands there already goes: it is left over, or a second name of another file. The file of a living holder stays.
FileLock::Attempt FileLock::tryAcquire() {
  const std::filesystem::path path = nativePath(path_);
  holder_ = kUnknownHolder;
  if (!DeleteFileW(path.c_str()) && GetLastError() == ERROR_SHARING_VIOLATION) return Attempt::InTheWay;
  const HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                  FILE_FLAG_DELETE_ON_CLOSE | FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
  if (file != INVALID_HANDLE_VALUE) {
    handle_ = reinterpret_cast<std::intptr_t>(file);
    return Attempt::Acquired;
  }
  const DWORD reason = GetLastError();
  if (reason == ERROR_SHARING_VIOLATION || reason == ERROR_FILE_EXISTS) return Attempt::InTheWay;
  errno = errnoOf(reason);
  return Attempt::Refused;
}

void FileLock::release() {
  if (handle_ != -1) CloseHandle(reinterpret_cast<HANDLE>(std::exchange(handle_, -1)));
}

#else

namespace {

constexpr int kMostTries = 100;
constexpr std::string_view kHolder = "process ";

class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() {
    const int errorBefore = errno;
    if (number_ >= 0) close(number_);
    errno = errorBefore;
  }

  int number() const { return number_; }
  int keep() { return std::exchange(number_, -1); }

 private:
  int number_;
};

int makeFile(const std::string& path, Access access) {
  return open(path.c_str(), O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC,
              access == Access::Private ? 0600 : 0666);
}

// A file of another user can be locked as well, where it may be read.
int openFound(const std::string& path) {
  constexpr int flags = O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
  const int file = open(path.c_str(), O_RDWR | flags);
  return file < 0 && (errno == EACCES || errno == EROFS) ? open(path.c_str(), O_RDONLY | flags) : file;
}

bool knowsNoLocks(int error) {
  return error == ENOLCK || error == EOPNOTSUPP || error == ENOTSUP || error == ENOSYS || error == EINVAL;
}

enum class Leads { Here, Elsewhere, Unknown };

Leads whereLeads(const std::string& path, int file) {
  struct stat atPath = {}, own = {};
  if (fstat(file, &own) != 0) return Leads::Unknown;
  if (lstat(path.c_str(), &atPath) != 0) return errno == ENOENT ? Leads::Elsewhere : Leads::Unknown;
  return atPath.st_dev == own.st_dev && atPath.st_ino == own.st_ino ? Leads::Here : Leads::Elsewhere;
}

bool isRegular(int file) {
  struct stat status = {};
  if (fstat(file, &status) != 0) return false;
  errno = EISDIR;
  return S_ISREG(status.st_mode);
}

// Only for the message to who finds the lock in the way: that it cannot be written hinders nothing.
void writeHolder(int file) {
  std::array<char, 256> host = {};
  if (gethostname(host.data(), host.size() - 1) != 0) return;
  const std::string text = std::string(kHolder) + std::to_string(getpid()) + " on " + host.data() + "\n";
  [[maybe_unused]] const ssize_t written = write(file, text.data(), text.size());
}

std::string readHolder(int file) {
  std::array<char, 512> bytes;
  const ssize_t count = pread(file, bytes.data(), bytes.size(), 0);
  const std::string_view text(bytes.data(), count > 0 ? static_cast<std::size_t>(count) : 0);
  const std::string_view line = text.substr(0, text.find('\n'));
  const bool isOurs = line.starts_with(kHolder) && line.size() < text.size();
  for (const char c : line)
    if (c < ' ' || c > '~') return kUnknownHolder;
  return isOurs ? std::string(line) : kUnknownHolder;
}

enum class Step { Held, InTheWay, Refused, Again };

// Again, where the file's name has gone to another file in the meantime: its holder has released it.
Step lockFile(const std::string& path, int file) {
  if (flock(file, LOCK_EX | LOCK_NB) != 0) {
    if (errno == EWOULDBLOCK) return Step::InTheWay;
    if (!knowsNoLocks(errno)) return Step::Refused;
  }
  const Leads leads = whereLeads(path, file);
  if (leads == Leads::Unknown) return Step::Refused;
  return leads == Leads::Here ? Step::Held : Step::Again;
}

Step lockMade(const std::string& path, Descriptor& file) {
  const Step step = lockFile(path, file.number());
  if (step == Step::Held) writeHolder(file.number());
  return step;
}

// What is left over of a program that was killed goes, where it may: it stays only in a folder whose files their
// owners alone may remove.
Step lockFound(const std::string& path, Descriptor& file, std::string& holder) {
  if (file.number() < 0) {
    const bool isLink = errno == ELOOP;
    return errno == ENOENT || (isLink && unlink(path.c_str()) == 0) ? Step::Again : Step::Refused;
  }
  if (!isRegular(file.number())) return Step::Refused;
  const Step step = lockFile(path, file.number());
  if (step == Step::InTheWay) holder = readHolder(file.number());
  return step == Step::Held && unlink(path.c_str()) == 0 ? Step::Again : step;
}

Step tryOnce(const std::string& path, Access access, std::intptr_t& handle, std::string& holder) {
  Descriptor file(makeFile(path, access));
  if (file.number() < 0 && errno != EEXIST) return Step::Refused;
  const bool isMade = file.number() >= 0;
  Descriptor found(isMade ? -1 : openFound(path));
  Descriptor& lock = isMade ? file : found;
  const Step step = isMade ? lockMade(path, lock) : lockFound(path, lock, holder);
  if (step == Step::Held) handle = lock.keep();
  return step;
}

}  // namespace

FileLock::Attempt FileLock::tryAcquire() {
  holder_ = kUnknownHolder;
  for (int tries = 0; tries < kMostTries; ++tries) {
    const Step step = tryOnce(path_, access_, handle_, holder_);
    if (step == Step::Held) return Attempt::Acquired;
    if (step == Step::Refused) return Attempt::Refused;
    if (step == Step::InTheWay) return Attempt::InTheWay;
  }
  return Attempt::InTheWay;
}

// The name goes before the lock, so that no other program takes the file for one that was left over.
void FileLock::release() {
  if (handle_ < 0) return;
  const Descriptor file(static_cast<int>(std::exchange(handle_, -1)));
  if (whereLeads(path_, file.number()) == Leads::Here) unlink(path_.c_str());
}

#endif

}  // namespace tavimor
