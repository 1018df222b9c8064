// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "graphics/checks.h"

#include "graphics/trial.h"

#include <algorithm>

#include <xmmintrin.h>

namespace lxpm::test {

namespace {

/// Bytes from one vector to the next, by the length of a vector.
struct StridePair {
    int src;
    int dst;
};

int lengthOf(const GraphicsExport &item, bool isWritten) {
    for (const GraphicsParameter &parameter : item.parameters) {
        if (parameter.isArray && parameter.isWritten() == isWritten) {
            return 4 * parameter.elements;
        }
    }
    return 0;
}

std::vector<StridePair> stridesOf(const GraphicsExport &item) {
    if (!item.hasArrays()) {
        return {{0, 0}};
    }
    const int src = lengthOf(item, false);
    const int dst = lengthOf(item, true);
    return {
        {src, dst},         // packed
        {16, 16},           // padded to whole registers
        {src + 4, dst + 4}, // gaps
        {20, dst},          // each kind of reading with each kind of writing
        {src, dst + 12},    //
        {44, 52},           // no multiples of anything
        {-src, dst},        // downwards
        {src, -dst},        //
        {-24, -28},         //
        {4, dst},           // vectors that overlap
        {0, dst},           // always the same vector
        {4096, 4100},       // a page apart, and a little more
        {8192, dst},        // more than a page apart
    };
}

/// Groups of eight with every remainder; none.
std::vector<int> countsOf(const GraphicsExport &item) {
    if (!item.hasArrays()) {
        return {1};
    }
    std::vector<int> counts = {-1};
    for (int count = 0; count <= 17; ++count) {
        counts.push_back(count);
    }
    counts.push_back(40);
    return counts;
}

bool mayHaveNulls(const GraphicsExport &item) {
    return std::any_of(item.parameters.begin(), item.parameters.end(),
                       [](const GraphicsParameter &parameter) { return parameter.mayBeNull; });
}

std::vector<TrialLayout> layoutsOf(const GraphicsExport &item) {
    std::vector<TrialLayout> layouts;
    for (const StridePair &strides : stridesOf(item)) {
        for (const int count : countsOf(item)) {
            TrialLayout layout{.count = count, .srcStride = strides.src, .dstStride = strides.dst};
            for (const Place place : {Place::Front, Place::Back}) {
                layout.place = place;
                layouts.push_back(layout);
            }
            layout.place = Place::Middle;
            for (layout.shift = 0; layout.shift < 8; ++layout.shift) {
                layouts.push_back(layout);
            }
        }
    }
    if (mayHaveNulls(item)) {
        layouts.push_back({.hasNulls = true});
    }
    return layouts;
}

/// Trials of a function without arrays are cheap, and only its values make a difference.
int repetitionsOf(const GraphicsExport &item) {
    return item.hasArrays() ? 1 : 30;
}

void runAll(const GraphicsExport &item, const Values &values, Report &report) {
    for (const TrialLayout &layout : layoutsOf(item)) {
        Trial trial(item, layout);
        for (int turn = 0; turn < repetitionsOf(item); ++turn) {
            trial.run(values, report);
        }
    }
}

} // namespace

Report checkGraphicsValues(const GraphicsExport &item) {
    Report report;
    runAll(item, ordinaryValues(1), report);
    return report;
}

Report checkGraphicsSpecialValues(const GraphicsExport &item) {
    Report report;
    runAll(item, specialValues(2), report);
    return report;
}

Report checkGraphicsRounding(const GraphicsExport &item) {
    Report report;
    const unsigned environment = _mm_getcsr();
    for (const unsigned mode : {_MM_ROUND_DOWN, _MM_ROUND_UP, _MM_ROUND_TOWARD_ZERO}) {
        TrialLayout layout{.count = 19, .srcStride = lengthOf(item, false), .dstStride = lengthOf(item, true)};
        Trial trial(item, layout);
        _MM_SET_ROUNDING_MODE(mode);
        for (int turn = 0; turn < 20; ++turn) {
            trial.run(ordinaryValues(3 + static_cast<unsigned>(turn)), report);
        }
        _mm_setcsr(environment);
    }
    return report;
}

Report checkGraphicsSharing(const GraphicsExport &item) {
    Report report;
    const int farthest = item.sharing == Sharing::Overlap ? 4 : 0;
    const bool sharesArrays = item.hasArrays();
    for (std::size_t source = 0; source < item.parameters.size(); ++source) {
        const GraphicsParameter &parameter = item.parameters[source];
        const GraphicsParameter *destination = nullptr;
        for (const GraphicsParameter &other : item.parameters) {
            if (other.text == "float *dst") {
                destination = &other;
            }
        }
        const bool fits = destination != nullptr && destination->elements == parameter.elements;
        if (parameter.isWritten() || !parameter.isPointer() || parameter.isArray != sharesArrays ||
            (item.sharing == Sharing::Exact && !fits)) {
            continue;
        }
        for (int offset = -farthest; offset <= farthest; ++offset) {
            for (const int count : countsOf(item)) {
                const int length = lengthOf(item, true);
                for (const int stride : {length, length + 4, 40}) {
                    TrialLayout layout{.place = Place::Middle,
                                       .count = count,
                                       .srcStride = stride,
                                       .dstStride = stride,
                                       .sharedSource = static_cast<int>(source),
                                       .sharedOffset = offset};
                    Trial trial(item, layout);
                    for (int turn = 0; turn < 5; ++turn) {
                        trial.run(ordinaryValues(static_cast<unsigned>(turn)), report);
                        trial.run(specialValues(static_cast<unsigned>(turn)), report);
                    }
                }
            }
        }
    }
    return report;
}

} // namespace lxpm::test
