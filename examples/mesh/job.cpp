// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "job.h"

#include <algorithm>
#include <stdexcept>

namespace lxpm::mesh {

void Job::run(const Step &step) {
    using Clock = std::chrono::steady_clock;
    Seconds fastest = Seconds::max(), all{};
    for (int i = 0; i < repeat_; ++i) {
        progress_.show(step.name, i, repeat_);
        const Clock::time_point begin = Clock::now();
        const LxpStatus status = step.compute();
        const Seconds time = Clock::now() - begin;
        fastest = std::min(fastest, time);
        all += time;
        if (status != lxpStatusOk) {
            throw std::runtime_error(std::string(step.function) + " returned " + std::to_string(status));
        }
    }
    measurements_.push_back(
        {step.name, step.function, step.objects, fastest, all, step.deviation().largest(), step.limit});
}

} // namespace lxpm::mesh
