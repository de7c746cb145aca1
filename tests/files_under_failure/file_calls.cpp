// The system's calls, which the program finds here before it finds them in the C library.

#include "file_calls.h"

#include <bitset>
#include <cerrno>
#include <cstdarg>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>

namespace benevix {

thread_local FileCalls fileCalls;

namespace {

thread_local std::bitset<1024> ours;  // the open files below the folder

template <class F>
F* Real(const char* name) {
  return reinterpret_cast<F*>(dlsym(RTLD_NEXT, name));
}

bool IsOurs(const char* path) {
  return fileCalls.watched && std::string(path).starts_with(fileCalls.folder);
}
bool IsOurs(int file) {
  return fileCalls.watched && file >= 0 && file < 1024 && ours[static_cast<std::size_t>(file)];
}

enum class Needs { Nothing, Room };

bool IsHit(long call, Needs needs) {
  if (fileCalls.fault == Fault::FullDisk) return call >= fileCalls.at && needs == Needs::Room;
  return fileCalls.fault != Fault::None && call == fileCalls.at;
}

template <class Place>
bool Fails(Place place, Needs needs = Needs::Nothing) {
  if (!IsOurs(place) || !IsHit(++fileCalls.count, needs)) return false;
  if (fileCalls.fault == Fault::Kill) _exit(kKilled);
  errno = fileCalls.fault == Fault::FullDisk ? ENOSPC : EIO;
  return true;
}

}  // namespace
}  // namespace benevix

using namespace benevix;

extern "C" {

int open(const char* path, int flags, ...) {
  std::va_list rest;
  va_start(rest, flags);
  const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : 0;
  va_end(rest);
  const bool creates = (flags & O_CREAT) != 0 && faccessat(AT_FDCWD, path, F_OK, 0) != 0;
  if (Fails(path, creates ? Needs::Room : Needs::Nothing)) return -1;
  const int file = Real<int(const char*, int, ...)>("open")(path, flags, mode);
  if (file >= 0 && file < 1024) ours[static_cast<std::size_t>(file)] = IsOurs(path);
  return file;
}

int close(int file) {
  if (file >= 0 && file < 1024) ours[static_cast<std::size_t>(file)] = false;
  return Real<int(int)>("close")(file);
}

// Half of the bytes get there.
ssize_t write(int file, const void* bytes, std::size_t size) {
  const auto real = Real<ssize_t(int, const void*, std::size_t)>("write");
  if (IsOurs(file) && IsHit(fileCalls.count + 1, Needs::Room)) real(file, bytes, size / 2);
  return Fails(file, Needs::Room) ? -1 : real(file, bytes, size);
}

ssize_t read(int file, void* bytes, std::size_t size) {
  return Fails(file) ? -1 : Real<ssize_t(int, void*, std::size_t)>("read")(file, bytes, size);
}
ssize_t pread(int file, void* bytes, std::size_t size, off_t at) {
  return Fails(file)
             ? -1
             : Real<ssize_t(int, void*, std::size_t, off_t)>("pread")(file, bytes, size, at);
}
int fsync(int file) {
  return Fails(file, Needs::Room) ? -1 : Real<int(int)>("fsync")(file);
}
int fdatasync(int file) {
  return Fails(file, Needs::Room) ? -1 : Real<int(int)>("fdatasync")(file);
}
int ftruncate(int file, off_t size) noexcept {
  return Fails(file) ? -1 : Real<int(int, off_t)>("ftruncate")(file, size);
}
int fchmod(int file, mode_t mode) noexcept {
  return Fails(file) ? -1 : Real<int(int, mode_t)>("fchmod")(file, mode);
}
int flock(int file, int operation) noexcept {
  return Fails(file) ? -1 : Real<int(int, int)>("flock")(file, operation);
}
int fstat(int file, struct stat* status) noexcept {
  return Fails(file) ? -1 : Real<int(int, struct stat*)>("fstat")(file, status);
}
int access(const char* path, int mode) noexcept {
  return Fails(path) ? -1 : Real<int(const char*, int)>("access")(path, mode);
}
int unlink(const char* path) noexcept {
  return Fails(path) ? -1 : Real<int(const char*)>("unlink")(path);
}
int rename(const char* from, const char* to) noexcept {
  return Fails(to, Needs::Room) ? -1 : Real<int(const char*, const char*)>("rename")(from, to);
}
int symlink(const char* target, const char* link) noexcept {
  return Fails(link, Needs::Room) ? -1
                                  : Real<int(const char*, const char*)>("symlink")(target, link);
}
}
