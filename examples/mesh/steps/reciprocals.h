// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

namespace lxpm::mesh {

// What to multiply with in order to divide by a length; 0 where the length, from squares that single precision loses
// next to zero, has no correct digits.
inline float reciprocalOrZero(float length) {
    return length > 0x1p-40f ? 1 / length : 0.0f;
}

} // namespace lxpm::mesh
