// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "runtime/version.h"

#define LXPM_TEXT_OF(number) #number
#define LXPM_TEXT(number) LXPM_TEXT_OF(number)

#define LXPM_MAJOR 7
#define LXPM_MINOR 1
#define LXPM_UPDATE 1
#define LXPM_REVISION 37466

namespace lxpm::implementation {

namespace {

constexpr LxpmLibVersion record = {
    LXPM_MAJOR,
    LXPM_MINOR,
    LXPM_UPDATE,
    LXPM_REVISION,
    {'e', '9', '\0', '\0'},
    "lxpm AVX (e9)",
    LXPM_TEXT(LXPM_MAJOR) "." LXPM_TEXT(LXPM_MINOR) "." LXPM_TEXT(LXPM_UPDATE) " (r" LXPM_TEXT(LXPM_REVISION) ")",
    "Sep 24 2012",
};

} // namespace

const LxpmLibVersion *lxpmGetLibVersion() {
    return &record;
}

} // namespace lxpm::implementation
