// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "machine.h"

#include <fstream>

namespace lxpm::bench {

std::string processorName() {
    std::ifstream information("/proc/cpuinfo");
    for (std::string line; std::getline(information, line);) {
        if (line.starts_with("model name")) {
            return line.substr(line.find(": ") + 2);
        }
    }
    return "unknown";
}

} // namespace lxpm::bench
