// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "checks/placements.h"

namespace lxpm::test {

namespace {

const Pattern *patternFor(const Model &model, const Operand &operand, int number) {
    const Pattern *pattern = allPatterns()[number % allPatterns().size()];
    // A result that is not made element by element, and so may not be written over a source, has no last row either.
    const bool overlaps = pattern->objectsOverlap ||
                          (pattern->rowsOverlap && !(model.destinationMayBeSource && model.destinationRowsMayOverlap));
    return operand.isWritten && overlaps ? &dense : pattern;
}

} // namespace

int combinations() {
    return 2 * static_cast<int>(allPatterns().size());
}

std::vector<Placement> combination(const Model &model, int number) {
    const int patterns = static_cast<int>(allPatterns().size());
    const bool areAlike = number < patterns;
    std::vector<Placement> placements(model.operands.size());
    for (std::size_t index = 0; index < placements.size(); ++index) {
        // Any step that has no divisor in common with the number of patterns leads to different ones.
        const int step = areAlike ? 0 : static_cast<int>(5 * index);
        placements[index].pattern = patternFor(model, model.operands[index], number + step);
    }
    return placements;
}

void scatter(std::vector<Placement> &placements, int seed) {
    // None; one element; a register of either type; far into another page.
    static constexpr int offsets[] = {0, 1, 4, 8, 1025};
    // Pointers in order, as an array of structures gives them, may be taken for strides: by all operands or by some. No
    // divisor in common with the number of patterns, so that each of them meets both.
    const bool areInOrder = seed % 5 < 2;
    for (std::size_t index = 0; index < placements.size(); ++index) {
        const int own = seed + static_cast<int>(index) * 3;
        placements[index].shift = own % 8;
        placements[index].shuffle = areInOrder || own % 4 == 0 ? 0 : own + 1;
        placements[index].ptrOffset = offsets[own % std::size(offsets)];
    }
}

std::vector<Placement> gappedIn(const Model &model, unsigned operands) {
    std::vector<Placement> placements(model.operands.size());
    for (std::size_t index = 0; index < placements.size(); ++index) {
        placements[index].pattern = (operands >> index & 1) != 0 ? &gappedElements : &dense;
    }
    return placements;
}

} // namespace lxpm::test
