// Preloaded into Wine: after ORVANE_FULL_AFTER writes of a process to files of drive C the disk is
// full.

#define _GNU_SOURCE
#include <dlfcn.h>
#include <errno.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <unistd.h>

static int IsFull(int file) {
  static long writes;
  char link[64], path[4096];
  const char* after = getenv("ORVANE_FULL_AFTER");
  snprintf(link, sizeof link, "/proc/self/fd/%d", file);
  const ssize_t length = readlink(link, path, sizeof path - 1);
  if (!after || length <= 0) return 0;
  path[length] = 0;
  if (!strstr(path, "/drive_c/") || ++writes <= atol(after)) return 0;
  errno = ENOSPC;
  return 1;
}

ssize_t write(int file, const void* data, size_t size) {
  static ssize_t (*real)(int, const void*, size_t);
  if (!real) real = dlsym(RTLD_NEXT, "write");
  return IsFull(file) ? -1 : real(file, data, size);
}

ssize_t pwrite64(int file, const void* data, size_t size, off64_t at) {
  static ssize_t (*real)(int, const void*, size_t, off64_t);
  if (!real) real = dlsym(RTLD_NEXT, "pwrite64");
  return IsFull(file) ? -1 : real(file, data, size, at);
}

ssize_t pwrite(int file, const void* data, size_t size, off_t at) {
  return pwrite64(file, data, size, at);
}
