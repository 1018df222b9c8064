// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// For the small programs of this directory: a call that is large enough for a team of threads.

#ifndef LXPM_TESTS_PROCESS_LARGE_CALL_H
#define LXPM_TESTS_PROCESS_LARGE_CALL_H

#include "support/call.h"

#include <cstdio>

namespace lxpm::test {

class LargeCall {
public:
    LargeCall() : call_(findExport("lxpmSub_vava_64f"), {64}, 100, {Placement()}) {
        call_.fill(distinctValues(ElementType::Float64));
        call_.expectResults();
    }

    /// Allocates nothing unless the call goes wrong. Says on standard error what was wrong.
    bool isRight() {
        Report report;
        call_.invoke();
        call_.verify(lxpStatusOk, report);
        for (const std::string &complaint : report.complaints()) {
            std::fprintf(stderr, "%s\n", complaint.c_str());
        }
        return report.complaints().empty();
    }

private:
    Call call_;
};

} // namespace lxpm::test

#endif
