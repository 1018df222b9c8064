// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "progress.h"

#include <cstdio>
#include <unistd.h>

namespace lxpm::mesh {

namespace {

constexpr const char *eraseLine = "\r\033[K";

} // namespace

void Progress::show(std::string_view what, std::size_t done, std::size_t total) {
    static const bool terminal = isatty(STDERR_FILENO) != 0;
    if (!terminal) {
        return;
    }
    const Clock::time_point now = Clock::now();
    if (now < next_) {
        return;
    }
    const int percent = total == 0 ? 100 : static_cast<int>(100 * done / total);
    std::fprintf(stderr, "%s%.*s: %d %%", eraseLine, static_cast<int>(what.size()), what.data(), percent);
    std::fflush(stderr);
    next_ = now + std::chrono::milliseconds(100);
    visible_ = true;
}

void Progress::clear() {
    if (visible_) {
        std::fputs(eraseLine, stderr);
        visible_ = false;
    }
}

} // namespace lxpm::mesh
