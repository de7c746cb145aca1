#include "platform/linux/linux_files.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <string_view>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

#include "base/runtime_error.h"
#include "base/text.h"

namespace benevix {
namespace {

constexpr std::size_t kChunk = std::size_t{1} << 20;
constexpr mode_t kNewFile = 0666;  // before the umask

[[noreturn]] void Fail(const std::string& path, int reason = errno) {
  throw RuntimeError(FromUtf8(path + ": " + std::generic_category().message(reason)));
}

class OpenFile {
 public:
  OpenFile(std::string path, int flags)
      : path_(std::move(path)), descriptor_(open(path_.c_str(), flags | O_CLOEXEC, kNewFile)) {
    if (descriptor_ < 0) Fail(path_);
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
  std::size_t Read(char* buffer, std::size_t size) const {
    std::size_t count = 0;
    while (count < size) {
      const ssize_t result = read(descriptor_, buffer + count, size - count);
      if (result == 0) break;
      if (result < 0 && errno == EINTR) continue;
      if (result < 0) Fail(path_);
      count += static_cast<std::size_t>(result);
    }
    return count;
  }
  [[nodiscard]] std::string Read(std::size_t size) const {
    std::string bytes(size, '\0');
    bytes.resize(Read(bytes.data(), size));
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

  // EINVAL is not a failure: devices and the folders of some file systems cannot be flushed.
  void Flush() const { Check(fsync(descriptor_) != 0 && errno != EINVAL ? -1 : 0); }

  void Check(int result) const {
    if (result != 0) Fail(path_);
  }

 private:
  std::string path_;
  int descriptor_;
};

class LinuxFileReader : public FileReader {
 public:
  explicit LinuxFileReader(const std::string& path)
      : file_(path, O_RDONLY), size_(static_cast<std::size_t>(file_.Status().st_size)) {}
  [[nodiscard]] std::size_t Size() const override { return size_; }
  std::size_t Read(char* buffer, std::size_t size) override { return file_.Read(buffer, size); }

 private:
  OpenFile file_;
  std::size_t size_;
};

// A crash can lose the name of a new or renamed file unless its folder is flushed, too.
void FlushFolderOf(const std::string& path) {
  const std::string folder = std::filesystem::path(path).parent_path().string();
  OpenFile(folder.empty() ? "." : folder, O_RDONLY | O_DIRECTORY).Flush();
}

std::string ResolveLinks(const std::string& path) {
  std::error_code missing;
  const auto resolved = std::filesystem::canonical(path, missing);
  return missing ? path : resolved.string();
}

}  // namespace

bool LinuxFiles::Exists(const FilePath& path) const {
  return access(path.Utf8().c_str(), F_OK) == 0;
}

std::unique_ptr<FileReader> LinuxFiles::Open(const FilePath& path) const {
  return std::make_unique<LinuxFileReader>(path.Utf8());
}

std::string LinuxFiles::ReadAll(const FilePath& path) const {
  const OpenFile file(path.Utf8(), O_RDONLY);
  const auto size = static_cast<std::size_t>(file.Status().st_size);
  std::string bytes = file.Read(size + 1);  // the extra byte detects the end in one read
  while (bytes.size() > size) {
    const std::string more = file.Read(kChunk);
    if (more.empty()) break;
    bytes += more;
  }
  return bytes;
}

void LinuxFiles::Replace(const FilePath& path, const std::string& bytes) {
  const std::string target = ResolveLinks(path.Utf8());
  const std::string temporary = target + "." + std::to_string(getpid()) + ".new";
  const OpenFile file(temporary, O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW);
  try {
    struct stat old {};
    if (stat(target.c_str(), &old) == 0) file.Check(fchmod(file.Descriptor(), old.st_mode & 07777));
    file.Write(bytes);
    file.Flush();
    if (std::rename(temporary.c_str(), target.c_str()) != 0) Fail(target);
  } catch (const RuntimeError&) {
    unlink(temporary.c_str());
    throw;
  }
  FlushFolderOf(target);
}

void LinuxFiles::Append(const FilePath& path, const std::string& bytes) {
  const bool isNew = !Exists(path);
  const OpenFile file(path.Utf8(), O_WRONLY | O_APPEND | O_CREAT);
  while (flock(file.Descriptor(), LOCK_EX) != 0 && errno == EINTR) {
  }
  const off_t length = file.Status().st_size;
  try {
    if (isNew) FlushFolderOf(path.Utf8());
    file.Write(bytes);
    file.Check(fdatasync(file.Descriptor()));
  } catch (const RuntimeError&) {
    if (isNew && length == 0) {
      unlink(path.Utf8().c_str());
    } else if (ftruncate(file.Descriptor(), length) == 0) {
      fdatasync(file.Descriptor());
    }
    throw;
  }
}

void LinuxFiles::Remove(const FilePath& path) {
  if (unlink(path.Utf8().c_str()) != 0 && errno != ENOENT) Fail(path.Utf8());
}

void LinuxFiles::Copy(const FilePath& from, const FilePath& to) {
  const OpenFile source(from.Utf8(), O_RDONLY);
  std::error_code missing;
  if (std::filesystem::equivalent(from.Utf8(), to.Utf8(), missing)) {
    throw RuntimeError(FromUtf8(to.Utf8()) + ": is the file to be copied");
  }
  // Before `to` is truncated: a source that cannot be read leaves it as it was.
  std::string chunk = source.Read(kChunk);
  const OpenFile target(to.Utf8(), O_WRONLY | O_CREAT | O_TRUNC);
  for (; !chunk.empty(); chunk = source.Read(kChunk)) target.Write(chunk);
  target.Flush();
}

}  // namespace benevix
