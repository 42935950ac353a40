#include "tests/files/faulty_disk.h"

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdarg>

namespace bramlee {
namespace {

struct Disk {
  bool planned = false;
  DiskPlan plan;
  bool interrupted = false;
  std::vector<std::string> calls;
};

Disk& TheDisk() {
  static Disk disk;
  return disk;
}

/// Makes the call, or what the plan has in its place.
template <class Call>
auto Made(const char* name, Call call) -> decltype(call()) {
  Disk& disk = TheDisk();
  if (!disk.planned) return call();
  disk.calls.emplace_back(name);
  if (disk.plan.meanwhile) {
    disk.planned = false;
    disk.plan.meanwhile(static_cast<int>(disk.calls.size()));
    disk.planned = true;
  }
  const bool now = static_cast<int>(disk.calls.size()) == disk.plan.at;
  if (now && disk.plan.kill) raise(SIGKILL);
  if (now && disk.plan.error != 0) {
    errno = disk.plan.error;
    return -1;
  }
  const auto result = call();
  if (now && disk.plan.killAfter) raise(SIGKILL);
  return result;
}

/// Reads or writes, as the plan has it.
template <class Call>
ssize_t Moved(const char* name, std::size_t count, Call call) {
  Disk& disk = TheDisk();
  if (disk.planned && disk.plan.interrupt) {
    disk.interrupted = !disk.interrupted;
    if (disk.interrupted) {
      errno = EINTR;
      return -1;
    }
  }
  const bool half = disk.planned && disk.plan.byHalves && count > 1;
  return Made(name, [&] { return call(half ? count / 2 : count); });
}

}  // namespace

std::vector<std::string> WithDisk(const DiskPlan& plan, const std::function<void()>& run) {
  TheDisk() = {.planned = true, .plan = plan, .interrupted = false, .calls = {}};
  run();
  TheDisk().planned = false;
  return TheDisk().calls;
}

bool DiesWithDisk(const DiskPlan& plan, const std::function<void()>& run) {
  const pid_t child = fork();
  if (child == 0) {
    WithDisk(plan, run);
    _exit(0);
  }
  int status = 0;
  waitpid(child, &status, 0);
  return WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
}

}  // namespace bramlee

// The names are the linker's.
// NOLINTBEGIN(bugprone-reserved-identifier)
extern "C" {
int __real_open(const char* path, int flags, ...);
int __real_fcntl(int file, int command, ...);
int __real_flock(int file, int operation);
int __real_stat(const char* path, struct stat* seen);
int __real_fstat(int file, struct stat* seen);
int __real_fchmod(int file, mode_t mode);
int __real_fchown(int file, uid_t user, gid_t group);
int __real_fsync(int file);
int __real_rename(const char* from, const char* to);
int __real_unlink(const char* path);
int __real_close(int file);
ssize_t __real_pread(int file, void* bytes, std::size_t count, off_t offset);
ssize_t __real_pwrite(int file, const void* bytes, std::size_t count, off_t offset);

int __wrap_open(const char* path, int flags, ...);
int __wrap_fcntl(int file, int command, ...);
int __wrap_flock(int file, int operation);
int __wrap_stat(const char* path, struct stat* seen);
int __wrap_fstat(int file, struct stat* seen);
int __wrap_fchmod(int file, mode_t mode);
int __wrap_fchown(int file, uid_t user, gid_t group);
int __wrap_fsync(int file);
int __wrap_rename(const char* from, const char* to);
int __wrap_unlink(const char* path);
int __wrap_close(int file);
ssize_t __wrap_pread(int file, void* bytes, std::size_t count, off_t offset);
ssize_t __wrap_pwrite(int file, const void* bytes, std::size_t count, off_t offset);

int __wrap_open(const char* path, int flags, ...) {
  va_list more;
  va_start(more, flags);
  const mode_t mode = va_arg(more, mode_t);
  va_end(more);
  return bramlee::Made("open", [=] { return __real_open(path, flags, mode); });
}

int __wrap_fcntl(int file, int command, ...) {
  va_list more;
  va_start(more, command);
  void* argument = va_arg(more, void*);
  va_end(more);
  return bramlee::Made("fcntl", [=] { return __real_fcntl(file, command, argument); });
}

int __wrap_flock(int file, int operation) {
  return bramlee::Made("flock", [=] { return __real_flock(file, operation); });
}

int __wrap_stat(const char* path, struct stat* seen) {
  return bramlee::Made("stat", [=] { return __real_stat(path, seen); });
}

int __wrap_fstat(int file, struct stat* seen) {
  return bramlee::Made("fstat", [=] { return __real_fstat(file, seen); });
}

int __wrap_fchmod(int file, mode_t mode) {
  return bramlee::Made("fchmod", [=] { return __real_fchmod(file, mode); });
}

int __wrap_fchown(int file, uid_t user, gid_t group) {
  return bramlee::Made("fchown", [=] { return __real_fchown(file, user, group); });
}

int __wrap_fsync(int file) {
  return bramlee::Made("fsync", [=] { return __real_fsync(file); });
}

int __wrap_rename(const char* from, const char* to) {
  return bramlee::Made("rename", [=] { return __real_rename(from, to); });
}

int __wrap_unlink(const char* path) {
  return bramlee::Made("unlink", [=] { return __real_unlink(path); });
}

int __wrap_close(int file) {
  const int closed = __real_close(file);  // the system closes also what it fails to write back
  return bramlee::Made("close", [=] { return closed; });
}

ssize_t __wrap_pread(int file, void* bytes, std::size_t count, off_t offset) {
  return bramlee::Moved("pread", count,
                        [=](std::size_t some) { return __real_pread(file, bytes, some, offset); });
}

ssize_t __wrap_pwrite(int file, const void* bytes, std::size_t count, off_t offset) {
  return bramlee::Moved("pwrite", count,
                        [=](std::size_t some) { return __real_pwrite(file, bytes, some, offset); });
}
}
// NOLINTEND(bugprone-reserved-identifier)
