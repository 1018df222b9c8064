// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// One call of a graphics function beside its reference, on the same memory between guard pages.

#ifndef LXPM_TESTS_GRAPHICS_TRIAL_H
#define LXPM_TESTS_GRAPHICS_TRIAL_H

#include "graphics/exports.h"
#include "support/arena.h"
#include "support/report.h"

#include <functional>
#include <memory>
#include <random>
#include <vector>

namespace lxpm::test {

enum class Place { Front, Middle, Back }; // of the pages; the guards are at both ends

struct TrialLayout {
    Place place = Place::Back;
    int shift = 0; // elements between a page's middle and the first vector
    int count = 1;
    int srcStride = 0;
    int dstStride = 0;
    bool hasNulls = false;
    int sharedSource = -1; // the pointer parameter whose memory the destination is
    int sharedOffset = 0;  // in elements
};

/// The values of elements and scalars, one after the other.
struct Values {
    std::function<float()> next;
    bool areOrdinary; // no operation on them is invalid
};

/// Of either sign and of magnitudes whose sums are not exact.
Values ordinaryValues(unsigned seed);

/// Zeros of either sign, infinities, NaN, the largest and smallest numbers, among ordinary ones.
Values specialValues(unsigned seed);

class Trial {
public:
    Trial(const GraphicsExport &item, const TrialLayout &layout);

    /// Fills what the function reads, calls both, and complains unless the results, all other memory and the statuses
    /// agree.
    void run(const Values &values, Report &report);

private:
    struct Memory {
        std::shared_ptr<Arena> arena; // none: null, or no pointer
        std::byte *address;
    };

    void placeSeparately(std::size_t index);
    void fill(const Values &values);
    std::vector<std::vector<std::byte>> contents() const;
    void restore(const std::vector<std::vector<std::byte>> &before);
    std::string findDifference(const std::vector<std::vector<std::byte>> &before) const;
    std::string text() const;

    const GraphicsExport &export_;
    TrialLayout layout_;
    std::vector<Memory> memory_; // one for each parameter
    std::vector<Argument> arguments_;
};

} // namespace lxpm::test

#endif
