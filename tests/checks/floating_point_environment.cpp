// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "checks/checks.h"
#include "checks/parallel_sizes.h"
#include "support/call.h"
#include "support/thread_count.h"

#include <sstream>

#include <xmmintrin.h>

namespace lxpm::test {

namespace {

constexpr unsigned flags = 0x003f;
constexpr unsigned inexact = 0x0020;
constexpr unsigned underflow = 0x0012; // and denormals as operands
constexpr unsigned denormalsAreZero = 0x0040;
constexpr unsigned maskAll = 0x1f80;
constexpr unsigned roundDown = 0x2000;
constexpr unsigned roundUp = 0x4000;
constexpr unsigned roundTowardsZero = 0x6000;
constexpr unsigned flushToZero = 0x8000;

constexpr unsigned environments[] = {
    maskAll,
    maskAll | roundDown,
    maskAll | roundUp,
    maskAll | roundTowardsZero,
    maskAll | flushToZero | denormalsAreZero,
    maskAll | flags, // flags that are raised stay raised
};

class ScopedEnvironment {
public:
    explicit ScopedEnvironment(unsigned environment) : before_(_mm_getcsr()) { _mm_setcsr(environment); }
    ~ScopedEnvironment() { _mm_setcsr(before_); }
    ScopedEnvironment(const ScopedEnvironment &) = delete;
    ScopedEnvironment &operator=(const ScopedEnvironment &) = delete;

private:
    unsigned before_;
};

/// Runs one call under an environment; the formula is evaluated under the same one. Flags other than those given may
/// not be raised: what stands between the elements is signalling NaN and would raise one.
void verify(const Export &item, const ParallelCase &at, const Pattern &pattern, unsigned environment, const Fill &fill,
            unsigned mayRaise, Report &report) {
    if (report.isFull()) {
        return;
    }
    report.countCase();
    Call call(item, at.shape, at.count, {Placement{.pattern = &pattern}});
    call.fill(fill);
    unsigned after;
    {
        const ScopedEnvironment scope(environment);
        call.expectResults();
        _mm_setcsr(environment);
        call.invoke();
        after = _mm_getcsr();
    }
    call.verify(report);
    if ((after & ~mayRaise) != (environment & ~mayRaise)) {
        std::ostringstream text;
        text << std::hex << "the control and status register was 0x" << environment << " and became 0x" << after;
        call.complain(text.str(), report);
    }
}

} // namespace

Report checkFloatingPointEnvironment(const Export &item) {
    Report report;
    const Model &model = item.model;
    std::vector<ParallelCase> cases;
    for (const Shape &shape : model.axes->small) {
        // Several registers of lanes at a time, and what is left.
        cases.push_back({shape, model.hasCount ? 37 : 1});
    }
    if (model.parallel) {
        cases.push_back({firstParallelShape(model, 10, true), 10});
        cases.push_back({model.axes->small.back(), firstParallelCount(model, model.axes->small.back(), true)});
    }
    setThreadCount(2);
    const unsigned always = model.mayUnderflow ? underflow : 0;
    for (const unsigned environment : environments) {
        for (const ParallelCase &at : cases) {
            for (const Pattern *pattern : {&dense, &paddedRows, &gappedElements}) {
                if (model.takesWholeNumbers) {
                    verify(item, at, *pattern, environment, wholeNumbers(model.type),
                           always | (model.isExactForWholeNumbers ? 0 : inexact), report);
                }
                verify(item, at, *pattern, environment, distinctValues(model.type), always | inexact, report);
            }
        }
    }
    return report;
}

} // namespace lxpm::test
