#include "platform/linux/linux_files.h"

#include <cerrno>
#include <charconv>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <optional>
#include <string_view>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <thread>
#include <unistd.h>

#include "base/runtime_error.h"
#include "base/text.h"

namespace benevix {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kChunk = std::size_t{1} << 20;
constexpr mode_t kOwnersFile = 0600;
constexpr mode_t kEveryonesFile = 0644;
constexpr mode_t kPermissions = 07777;
constexpr mode_t kOthers = 077;  // everyone but the owner
constexpr std::chrono::milliseconds kLockInterval{2};
// Appending takes milliseconds; who holds a file for longer has been stopped.
constexpr std::chrono::seconds kAppendPatience{2};
constexpr std::string_view kTemporary = ".new";

[[noreturn]] void Fail(const std::string& path, const std::string& reason) {
  throw RuntimeError(FromUtf8(path + ": " + reason));
}
[[noreturn]] void Fail(const std::string& path, int reason = errno) {
  Fail(path, std::generic_category().message(reason));
}

class OpenFile {
 public:
  // Never waits, as opening a pipe would. With O_DIRECTORY a folder, otherwise a regular file.
  OpenFile(std::string path, int flags)
      : path_(std::move(path)),
        descriptor_(open(path_.c_str(), flags | O_CLOEXEC | O_NONBLOCK, kOwnersFile)) {
    if (descriptor_ < 0) Fail(path_);
    struct stat status {};
    if ((flags & O_DIRECTORY) != 0 || (fstat(descriptor_, &status) == 0 && S_ISREG(status.st_mode)))
      return;
    close(descriptor_);
    Fail(path_, "not a regular file");
  }
  ~OpenFile() { close(descriptor_); }
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;

  [[nodiscard]] int Descriptor() const { return descriptor_; }

  [[nodiscard]] struct stat Status() const {
    struct stat status {};
    Check(fstat(descriptor_, &status));
    return status;
  }

  // Reads up to `size` bytes, fewer only at the end of the file; returns their number.
  std::size_t Read(std::size_t offset, char* buffer, std::size_t size) const {
    std::size_t count = 0;
    while (count < size) {
      const ssize_t result =
          pread(descriptor_, buffer + count, size - count, static_cast<off_t>(offset + count));
      if (result == 0) break;
      if (result < 0 && errno == EINTR) continue;
      if (result < 0) Fail(path_);
      count += static_cast<std::size_t>(result);
    }
    return count;
  }
  [[nodiscard]] std::string Read(std::size_t offset, std::size_t size) const {
    std::string bytes(size, '\0');
    bytes.resize(Read(offset, bytes.data(), size));
    return bytes;
  }

  void Write(std::string_view bytes) const {
    while (!bytes.empty()) {
      const ssize_t result = write(descriptor_, bytes.data(), bytes.size());
      if (result < 0 && errno == EINTR) continue;
      if (result < 0) Fail(path_);
      bytes.remove_prefix(static_cast<std::size_t>(result));
    }
  }

  // EINVAL is not a failure: the folders of some file systems cannot be flushed.
  void Flush() const { Check(fsync(descriptor_) != 0 && errno != EINVAL ? -1 : 0); }

  // False when another process still has the lock after `patience`. The lock ends with the file.
  [[nodiscard]] bool Lock(std::chrono::milliseconds patience) const {
    const auto deadline = std::chrono::steady_clock::now() + patience;
    while (flock(descriptor_, LOCK_EX | LOCK_NB) != 0) {
      if (errno == EINTR) continue;
      if (errno == ENOLCK || errno == EOPNOTSUPP) return true;  // no locks on this file system
      if (errno != EWOULDBLOCK) Fail(path_);
      if (std::chrono::steady_clock::now() >= deadline) return false;
      std::this_thread::sleep_for(kLockInterval);
    }
    return true;
  }

  void Check(int result) const {
    if (result != 0) Fail(path_);
  }

 private:
  std::string path_;
  int descriptor_;
};

FileState StateOf(const OpenFile& file) {
  const struct stat status = file.Status();
  return {static_cast<std::size_t>(status.st_size), status.st_dev, status.st_ino,
          status.st_ctim.tv_sec, status.st_ctim.tv_nsec};
}

class LinuxFileReader : public FileReader {
 public:
  explicit LinuxFileReader(const std::string& path)
      : file_(path, O_RDONLY), state_(StateOf(file_)) {}
  [[nodiscard]] const FileState& State() const override { return state_; }
  std::size_t Read(std::size_t offset, char* buffer, std::size_t size) const override {
    return file_.Read(offset, buffer, size);
  }

 private:
  OpenFile file_;
  FileState state_;
};

class LinuxFolderLock : public FolderLock {
 public:
  explicit LinuxFolderLock(const std::string& folder) : folder_(folder, O_RDONLY | O_DIRECTORY) {}
  [[nodiscard]] bool Acquire(std::chrono::milliseconds patience) const {
    return folder_.Lock(patience);
  }

 private:
  OpenFile folder_;
};

fs::path FolderOf(const fs::path& path) {
  return path.has_parent_path() ? path.parent_path() : fs::path(".");
}

// A crash can lose the name of a new or renamed file unless its folder is flushed, too.
void FlushFolderOf(const std::string& path) {
  OpenFile(FolderOf(path).string(), O_RDONLY | O_DIRECTORY).Flush();
}

enum class Links { All, InFolder };  // to any place, or to names in the same folder

// The file that a path names in the end; it may be missing. Follows no more links than the system
// does.
std::string ResolveLinks(const std::string& path, Links links) {
  fs::path resolved = path;
  constexpr int mostLinks = 40;
  for (int i = 0; i < mostLinks; ++i) {
    std::error_code noLink;
    const fs::path folder = FolderOf(resolved);
    const fs::path next = (folder / fs::read_symlink(resolved, noLink)).lexically_normal();
    const bool leaves = next.parent_path() != folder.lexically_normal();
    if (noLink || (links == Links::InFolder && leaves)) break;
    resolved = next;
  }
  return resolved.string();
}

// Bears the process's number, by which RemoveLeftovers recognizes what a dead one left.
std::string TemporaryFor(const std::string& path) {
  std::string temporary = path + "." + std::to_string(getpid());
  return temporary.append(kTemporary);
}

bool IsLeftover(std::string_view name) {
  if (!name.ends_with(kTemporary)) return false;
  name.remove_suffix(kTemporary.size());
  name.remove_prefix(name.rfind('.') + 1);  // all of it without a point
  pid_t process = 0;
  const auto read = std::from_chars(name.data(), name.data() + name.size(), process);
  const bool isNumber = read.ec == std::errc() && read.ptr == name.data() + name.size();
  return isNumber && process > 0 && kill(process, 0) != 0 && errno == ESRCH;
}

void Rename(const std::string& from, const std::string& to) {
  if (std::rename(from.c_str(), to.c_str()) != 0) Fail(to);
  FlushFolderOf(to);
}

// A replaced file's permissions go to the one that takes its place.
void KeepPermissions(const OpenFile& file, const std::string& replaced) {
  struct stat old {};
  if (stat(replaced.c_str(), &old) != 0) return;
  file.Check(fchmod(file.Descriptor(), old.st_mode & kPermissions));
}

// Whether the path still names the open file.
bool IsNamed(const OpenFile& file, const std::string& path) {
  const struct stat open = file.Status();
  struct stat named {};
  if (stat(path.c_str(), &named) != 0 && errno != ENOENT) Fail(path);
  return named.st_ino == open.st_ino && named.st_dev == open.st_dev;
}

// A file to append to, locked, still under its name, and created when it is missing. One that
// another process created and took back when it could not write is not written to.
class AppendedFile {
 public:
  explicit AppendedFile(const std::string& path) {
    do {
      file_.reset();
      isNew_ = access(path.c_str(), F_OK) != 0;
      file_.emplace(path, O_RDWR | O_APPEND | O_CREAT);
      if (!file_->Lock(kAppendPatience)) Fail(path, EWOULDBLOCK);
    } while (!IsNamed(*file_, path));
    length_ = file_->Status().st_size;
    isNew_ = isNew_ && length_ == 0;
  }

  [[nodiscard]] bool IsNew() const { return isNew_; }
  [[nodiscard]] off_t Length() const { return length_; }
  const OpenFile* operator->() const { return &*file_; }

  // A record cut off by a crash or a full disk may be the last.
  [[nodiscard]] bool EndsTorn() const {
    char last = '\n';
    const bool isRead = length_ == 0 || pread(file_->Descriptor(), &last, 1, length_ - 1) == 1;
    file_->Check(isRead ? 0 : -1);
    return last != '\n';
  }

 private:
  std::optional<OpenFile> file_;
  bool isNew_ = false;
  off_t length_ = 0;
};

}  // namespace

bool LinuxFiles::Exists(const FilePath& path) const {
  return access(path.Utf8().c_str(), F_OK) == 0 || (errno != ENOENT && errno != ENOTDIR);
}

std::unique_ptr<FileReader> LinuxFiles::Open(const FilePath& path) const {
  return std::make_unique<LinuxFileReader>(path.Utf8());
}

std::string LinuxFiles::ReadAll(const FilePath& path) const {
  const OpenFile file(path.Utf8(), O_RDONLY);
  const auto size = static_cast<std::size_t>(file.Status().st_size);
  std::string bytes = file.Read(0, size + 1);  // the extra byte detects the end in one read
  while (bytes.size() > size) {
    const std::string more = file.Read(bytes.size(), kChunk);
    if (more.empty()) break;
    bytes += more;
  }
  return bytes;
}

void LinuxFiles::Replace(const FilePath& path, const std::string& bytes, Readers ofNew) {
  const std::string target = ResolveLinks(path.Utf8(), Links::All);
  const std::string temporary = TemporaryFor(target);
  const OpenFile file(temporary, O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW);
  try {
    if (ofNew == Readers::Everyone) file.Check(fchmod(file.Descriptor(), kEveryonesFile));
    KeepPermissions(file, target);
    file.Write(bytes);
    file.Flush();
    Rename(temporary, target);
  } catch (const RuntimeError&) {
    unlink(temporary.c_str());
    throw;
  }
}

void LinuxFiles::Append(const FilePath& path, const std::string& bytes) {
  const AppendedFile file(path.Utf8());
  try {
    if (file.IsNew()) FlushFolderOf(path.Utf8());
    // Fails on a file of another user, who may decide on its readers.
    fchmod(file->Descriptor(), file->Status().st_mode & kPermissions & ~kOthers);
    file->Write(file.EndsTorn() ? "\r\n" + bytes : bytes);
    file->Check(fdatasync(file->Descriptor()));
  } catch (const RuntimeError&) {
    if (file.IsNew()) {
      unlink(path.Utf8().c_str());
    } else if (ftruncate(file->Descriptor(), file.Length()) == 0) {
      fdatasync(file->Descriptor());
    }
    throw;
  }
}

void LinuxFiles::Remove(const FilePath& path) {
  if (unlink(path.Utf8().c_str()) != 0 && errno != ENOENT) Fail(path.Utf8());
}

FilePath LinuxFiles::Move(const FilePath& from, const FilePath& to) {
  FilePath target(ResolveLinks(to.Utf8(), Links::InFolder));
  KeepPermissions(OpenFile(from.Utf8(), O_RDONLY), target.Utf8());
  Rename(from.Utf8(), target.Utf8());
  return target;
}

void LinuxFiles::Link(const FilePath& target, const FilePath& link) {
  const std::string temporary = TemporaryFor(link.Utf8());
  Remove(FilePath(temporary));
  if (symlink(target.Utf8().c_str(), temporary.c_str()) != 0) Fail(link.Utf8());
  try {
    Rename(temporary, link.Utf8());
  } catch (const RuntimeError&) {
    unlink(temporary.c_str());
    throw;
  }
}

std::unique_ptr<FolderLock> LinuxFiles::Lock(const FilePath& folder,
                                             std::chrono::milliseconds patience) {
  auto lock = std::make_unique<LinuxFolderLock>(folder.Utf8());
  if (!lock->Acquire(patience)) return nullptr;
  return lock;
}

FilePath LinuxFiles::TemporaryName(const FilePath& path) const {
  return FilePath(TemporaryFor(path.Utf8()));
}

void LinuxFiles::RemoveLeftovers(const FilePath& folder) {
  std::error_code ignored;
  for (fs::directory_iterator file(folder.Utf8(), ignored), end; file != end;
       file.increment(ignored)) {
    const fs::path path = file->path();
    if (IsLeftover(path.filename().string())) fs::remove(path, ignored);
  }
}

}  // namespace benevix
