// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include "runtime/numbers.h"

namespace lxpm {

// One mask for each of some steps. A single element takes no step in which its mask does not hold, so there is nothing
// to remember.
template <class V, int most>
class StepMasks {
public:
    void set(int step, MaskOf<V> mask) { masks[step] = mask; }
    MaskOf<V> at(int step) const { return masks[step]; }

private:
    MaskOf<V> masks[most];
};

template <class V, int most>
requires isSingle<V>
class StepMasks<V, most> {
public:
    void set(int, bool) {}
    static constexpr bool at(int) { return true; }
};

} // namespace lxpm
