// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstddef>
#include <string_view>

namespace lxpm::mesh {

// One line of progress on the standard error stream: only on a terminal, and only once the program has taken long
// enough for somebody to wonder.
class Progress {
public:
    ~Progress() { clear(); }

    void show(std::string_view what, std::size_t done, std::size_t total);
    void clear();

private:
    using Clock = std::chrono::steady_clock;

    Clock::time_point next_ = Clock::now() + std::chrono::milliseconds(500);
    bool visible_ = false;
};

} // namespace lxpm::mesh
