// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include "progress.h"
#include "report.h"
#include "steps/step.h"

namespace lxpm::mesh {

// Runs steps one after the other, and keeps what is to be told about them.
class Job {
public:
    Job(int repeat, Progress &progress) : repeat_(repeat), progress_(progress) {}

    // Throws std::runtime_error if the library refuses, which it does not unless the program is wrong.
    void run(const Step &step);

    const std::vector<Measurement> &measurements() const { return measurements_; }

private:
    int repeat_;
    Progress &progress_;
    std::vector<Measurement> measurements_;
};

} // namespace lxpm::mesh
