// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "support/cache_size.h"

#include <lxpcore.h>

#include <atomic>

#include <dlfcn.h>

namespace {

constexpr int ofCore = -1;
std::atomic<int> answer = ofCore;
std::atomic<int> asked = 0;

} // namespace

extern "C" LxpStatus lxpGetMaxCacheSizeB(int *size) {
    ++asked;
    if (answer != ofCore) {
        *size = answer;
        return lxpStatusOk;
    }
    using Function = LxpStatus (*)(int *);
    static const auto askCore = reinterpret_cast<Function>(dlsym(RTLD_NEXT, "lxpGetMaxCacheSizeB"));
    return askCore(size);
}

namespace lxpm::test {

CacheSize::CacheSize(int bytes) {
    answer = bytes;
    asked = 0;
}

CacheSize::~CacheSize() {
    answer = ofCore;
}

int CacheSize::questions() const {
    return asked;
}

} // namespace lxpm::test
