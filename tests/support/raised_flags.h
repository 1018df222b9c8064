// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include <xmmintrin.h>

namespace lxpm::test {

/// The floating-point flags that a call raises. Those of the caller stay as they are.
template <class F>
unsigned flagsRaisedBy(const F &call) {
    const unsigned before = _mm_getcsr();
    _mm_setcsr(before & ~_MM_EXCEPT_MASK);
    call();
    const unsigned raised = _mm_getcsr() & _MM_EXCEPT_MASK;
    _mm_setcsr(before);
    return raised;
}

} // namespace lxpm::test
