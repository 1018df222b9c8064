// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "checks/checks.h"
#include "checks/placements.h"
#include "support/call.h"
#include "support/thread_count.h"

#include <array>
#include <cstdint>

namespace lxpm::test {

namespace {

struct SpecialValue {
    std::uint32_t in32f;
    std::uint64_t in64f;
};

constexpr std::array specialValues = {
    SpecialValue{0x00000000, 0x0000000000000000}, // +0
    SpecialValue{0x80000000, 0x8000000000000000}, // -0: the sign of a zero result tells a - b from a + (-b)
    SpecialValue{0x00000001, 0x0000000000000001}, // the smallest denormal: lost where denormals are flushed
    SpecialValue{0x807fffff, 0x800fffffffffffff}, // the largest denormal, negative
    SpecialValue{0x00800000, 0x0010000000000000}, // the smallest normal number: differences become denormal
    SpecialValue{0x3f800000, 0x3ff0000000000000}, // 1
    SpecialValue{0x7f7fffff, 0x7fefffffffffffff}, // the largest finite number: sums overflow
    SpecialValue{0x7f800000, 0x7ff0000000000000}, // +infinity
    SpecialValue{0xff800000, 0xfff0000000000000}, // -infinity: meets the other in an invalid operation
    SpecialValue{0x7fc00123, 0x7ff8000000000123}, // a quiet NaN with a payload
    SpecialValue{0xffc00456, 0xfff8000000000456}, // another one, negative
    SpecialValue{0x7f800789, 0x7ff0000000000789}, // a signalling NaN: comes out quiet
};

} // namespace

Report checkSpecialValues(const Export &item) {
    Report report;
    setThreadCount(1);
    const Model &model = item.model;
    // Two registers of lanes, of either type, and a remainder; enough vectors for one product.
    const int count = model.hasCount ? 25 : 1;
    constexpr std::size_t values = specialValues.size();
    for (const Shape &shape : model.axes->special) {
        for (const unsigned gapped : {0u, ~0u}) {
            Call call(item, shape, count, gappedIn(model, gapped));
            // Every position of the one operand goes through all values, and meets all values of the other.
            for (std::size_t pair = 0; pair < values * values && !report.isFull(); ++pair) {
                const std::array<std::size_t, 2> start = {pair / values, pair % values};
                call.fill(
                    [&](int operand, std::size_t element) -> std::uint64_t {
                        // Of four operands the later two go through the values at twice the pace of the first two, and
                        // start the other way round.
                        const std::size_t later = operand / 2;
                        const std::size_t from = start[(operand + later) % 2];
                        const SpecialValue &value = specialValues[(element * (1 + later) + from) % values];
                        return model.type == ElementType::Float32 ? value.in32f : value.in64f;
                    },
                    Call::Values::AsTheyAre);
                call.verifyResults(report);
            }
        }
    }
    return report;
}

} // namespace lxpm::test
