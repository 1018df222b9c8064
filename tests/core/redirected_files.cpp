// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// Preloaded into a program: the control groups that it reads are those of a tree of files under $CONTROL_GROUPS_ROOT.

#include <cstdarg>
#include <cstdlib>
#include <fcntl.h>
#include <string>
#include <sys/syscall.h>
#include <unistd.h>

extern "C" int open(const char *name, int flags, ...) {
    std::va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
    va_end(arguments);

    std::string redirected = name;
    if (redirected.starts_with("/proc/self/cgroup") || redirected.starts_with("/sys/fs/cgroup")) {
        redirected.insert(0, std::getenv("CONTROL_GROUPS_ROOT"));
    }
    return static_cast<int>(syscall(SYS_openat, AT_FDCWD, redirected.c_str(), flags, mode));
}
