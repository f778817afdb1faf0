#include "base/file_io.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <optional>
#include <utility>

#include "base/clock.h"
#include "base/fault.h"

namespace tessarel {

namespace {

[[noreturn]] void RaiseFileAccess() {
  throw Fault(FaultNumber::FileAccess, FaultWording.FileAccess);
}

// The fault of a failed system call.
[[noreturn]] void RaiseSystemError(int error) {
  switch (error) {
    case ENOENT:
    case ENOTDIR:
      throw Fault(FaultNumber::FileNotFound, FaultWording.FileNotFound);
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      throw Fault(FaultNumber::DeviceFull, FaultWording.DeviceFull);
    default:
      RaiseFileAccess();
  }
}

class OpenFile {
 public:
  explicit OpenFile(int handle) : handle_(handle) {}
  ~OpenFile() {
    if (handle_ >= 0) close(handle_);
  }
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;

  int Handle() const { return handle_; }
  // Some file systems tell of a full disk only here.
  void Close() {
    const int handle = handle_;
    handle_ = -1;
    if (close(handle) != 0) RaiseSystemError(errno);
  }

 private:
  int handle_;
};

// Removes the file on the way out of a failure; `Keep` calls that off.
class TemporaryFile {
 public:
  explicit TemporaryFile(std::string path) : path_(std::move(path)) {}
  ~TemporaryFile() {
    if (!kept_) unlink(path_.c_str());
  }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

  void Keep() { kept_ = true; }

 private:
  std::string path_;
  bool kept_ = false;
};

// Names reach the system as C strings, so one with a null byte would mean another file.
bool IsName(const std::string& path) {
  return !path.empty() && path.find('\0') == std::string::npos;
}

std::optional<struct stat> StatusOf(const std::string& path) {
  struct stat status {};
  if (!IsName(path) || stat(path.c_str(), &status) != 0) return std::nullopt;
  return status;
}

bool IsOrdinary(const std::string& path) {
  const auto status = StatusOf(path);
  return status && S_ISREG(status->st_mode);
}

// The file behind any links; a file that is not there yet has its own name.
std::string ResolvedPath(const std::string& path) {
  const std::unique_ptr<char, decltype(&std::free)> resolved(realpath(path.c_str(), nullptr),
                                                             &std::free);
  return resolved ? resolved.get() : path;
}

std::string FolderOf(const std::string& path) {
  const size_t slash = path.rfind('/');
  return slash == std::string::npos ? "./" : path.substr(0, slash + 1);
}

// Makes a new file in the folder under a name of its own, which is left in `path`.
int CreateTemporary(const std::string& folder, mode_t mode, std::string& path) {
  constexpr int Tries = 100;
  for (int k = 0; k < Tries; ++k) {
    path = folder + ".tessarel-" + std::to_string(getpid()) + "-" + std::to_string(k) + ".tmp";
    const int handle = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
    if (handle >= 0) return handle;
    if (errno == ENOENT || errno == ENOTDIR) RaiseFileAccess();  // the folder is not there
    if (errno != EEXIST) RaiseSystemError(errno);
  }
  RaiseFileAccess();
}

void WriteAll(int handle, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t count = write(handle, bytes.data(), bytes.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) RaiseSystemError(errno);
    bytes.remove_prefix(static_cast<size_t>(count));
  }
}

// The handle of an ordinary file, opened for reading.
int OpenOrdinary(const std::string& path, struct stat& status) {
  if (!IsName(path)) RaiseSystemError(ENOENT);
  // Opening a pipe would otherwise wait for somebody to write to it.
  const int handle = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  if (handle < 0) RaiseSystemError(errno);
  const bool known = fstat(handle, &status) == 0;
  if (known && S_ISREG(status.st_mode)) return handle;
  const int error = known ? EACCES : errno;
  close(handle);
  RaiseSystemError(error);
}

void ReadBlocks(int handle, const std::function<bool(std::string_view)>& take) {
  std::array<char, 65536> block;
  for (;;) {
    const ssize_t count = read(handle, block.data(), block.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) RaiseSystemError(errno);
    if (count == 0 || !take({block.data(), static_cast<size_t>(count)})) return;
  }
}

// Makes a rename last; a folder that cannot be synchronised is no failure of the file.
void SyncFolder(const std::string& folder) {
  const OpenFile file(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (file.Handle() >= 0) fsync(file.Handle());
}

}  // namespace

void WriteFileAtomically(const std::string& path, std::string_view bytes) {
  WriteFileAtomically(path, [bytes](const ByteSink& sink) { sink(bytes); });
}

void WriteFileAtomically(const std::string& path,
                         const std::function<void(const ByteSink&)>& write) {
  if (!IsName(path)) RaiseFileAccess();
  const std::string target = ResolvedPath(path);
  const auto old = StatusOf(target);
  if (old && (!S_ISREG(old->st_mode) || access(target.c_str(), W_OK) != 0)) RaiseFileAccess();

  const std::string folder = FolderOf(target);
  std::string temporaryPath;
  OpenFile file(CreateTemporary(folder, old ? 0600 : 0666, temporaryPath));
  TemporaryFile temporary(temporaryPath);
  write([&file](std::string_view bytes) { WriteAll(file.Handle(), bytes); });
  if (old && fchmod(file.Handle(), old->st_mode & 07777) != 0) RaiseSystemError(errno);
  if (fsync(file.Handle()) != 0) RaiseSystemError(errno);
  file.Close();
  if (rename(temporaryPath.c_str(), target.c_str()) != 0) RaiseSystemError(errno);
  temporary.Keep();
  SyncFolder(folder);
}

std::string ReadWholeFile(const std::string& path, size_t maxBytes) {
  struct stat status {};
  const OpenFile file(OpenOrdinary(path, status));
  const auto raiseTooLarge = [] {
    throw Fault(FaultNumber::FileAccess, FaultWording.FileTooLarge);
  };
  if (static_cast<uint64_t>(status.st_size) > maxBytes) raiseTooLarge();
  std::string bytes;
  bytes.reserve(static_cast<size_t>(status.st_size));
  ReadBlocks(file.Handle(), [&](std::string_view block) {
    bytes.append(block);
    if (bytes.size() > maxBytes) raiseTooLarge();  // it grew meanwhile
    return true;
  });
  return bytes;
}

void ReadFileInBlocks(const std::string& path, const std::function<bool(std::string_view)>& take) {
  struct stat status {};
  const OpenFile file(OpenOrdinary(path, status));
  ReadBlocks(file.Handle(), take);
}

bool FileExists(const std::string& path) {
  return IsOrdinary(path);
}

std::string LastModifiedText(const std::string& path) {
  const auto status = StatusOf(path);
  if (!status || !S_ISREG(status->st_mode)) return "";
  return DateTimeText(LocalTimeOf(std::chrono::system_clock::from_time_t(status->st_mtime)));
}

void DeleteFileIfPresent(const std::string& path) {
  if (!IsName(path) || unlink(path.c_str()) == 0 || errno == ENOENT || errno == ENOTDIR) return;
  RaiseSystemError(errno);
}

}  // namespace tessarel
