// Preloaded into the companion: the n-th call (FAULT_CALL) that reads or changes a file below
// FAULT_FOLDER fails (FAULT_KIND=fail), or it and every later one that would take room finds the disk
// full (full), or the process ends there with half of its bytes written (end). FAULT_FOLDER.hit is
// made when it comes to that.

#define _GNU_SOURCE
#include <dlfcn.h>
#include <errno.h>
#include <fcntl.h>
#include <stdarg.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <unistd.h>

enum { Changes = 1 };  // as opposed to reading

static int IsKind(const char* kind) {
  const char* wanted = getenv("FAULT_KIND");
  return wanted && strcmp(wanted, kind) == 0;
}

static void Tell(const char* folder) {
  char hit[4096];
  snprintf(hit, sizeof hit, "%s.hit", folder);
  const long file = syscall(SYS_openat, AT_FDCWD, hit, O_CREAT | O_WRONLY, 0666);
  if (file >= 0) syscall(SYS_close, file);
}

/// Whether the call on the path is the one. It is over with the process when that is to end.
static int Hits(const char* path, int changes) {
  static long calls;
  const char* folder = getenv("FAULT_FOLDER");
  const char* call = getenv("FAULT_CALL");
  if (!folder || !call || !path || strncmp(path, folder, strlen(folder)) != 0) return 0;
  const int full = IsKind("full");
  if (full && !changes) return 0;
  ++calls;
  if (calls < atol(call) || (calls > atol(call) && !full)) return 0;
  Tell(folder);
  errno = full ? ENOSPC : EIO;
  return 1;
}

static int HitsFile(int file, int changes) {
  char link[64], path[4096];
  snprintf(link, sizeof link, "/proc/self/fd/%d", file);
  const ssize_t length = readlink(link, path, sizeof path - 1);
  path[length > 0 ? length : 0] = 0;
  return Hits(path, changes);
}

static int Fails(int hits) {
  if (hits && IsKind("end")) _exit(137);
  return hits;
}

#define REAL(result, name, ...) \
  static result (*real)(__VA_ARGS__); \
  if (!real) real = dlsym(RTLD_NEXT, #name)

ssize_t write(int file, const void* data, size_t size) {
  REAL(ssize_t, write, int, const void*, size_t);
  const int hits = HitsFile(file, Changes);
  if (hits && IsKind("end")) real(file, data, size / 2);
  return Fails(hits) ? -1 : real(file, data, size);
}

ssize_t writev(int file, const struct iovec* parts, int count) {
  REAL(ssize_t, writev, int, const struct iovec*, int);
  const int hits = HitsFile(file, Changes);
  if (hits && IsKind("end")) real(file, parts, count / 2);
  return Fails(hits) ? -1 : real(file, parts, count);
}

ssize_t read(int file, void* data, size_t size) {
  REAL(ssize_t, read, int, void*, size_t);
  return Fails(HitsFile(file, 0)) ? -1 : real(file, data, size);
}

FILE* fopen64(const char* path, const char* mode) {
  REAL(FILE*, fopen64, const char*, const char*);
  return Fails(Hits(path, mode[0] != 'r')) ? NULL : real(path, mode);
}

FILE* fopen(const char* path, const char* mode) { return fopen64(path, mode); }

int rename(const char* from, const char* to) {
  REAL(int, rename, const char*, const char*);
  return Fails(Hits(from, Changes)) ? -1 : real(from, to);
}

int remove(const char* path) {
  REAL(int, remove, const char*);
  return Fails(!IsKind("full") && Hits(path, Changes)) ? -1 : real(path);
}

int fchmodat(int folder, const char* path, mode_t mode, int flags) {
  REAL(int, fchmodat, int, const char*, mode_t, int);
  return Fails(!IsKind("full") && Hits(path, Changes)) ? -1 : real(folder, path, mode, flags);
}
