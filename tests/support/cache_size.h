// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// The test programs define lxpGetMaxCacheSizeB themselves, so that a test can have any machine.

#ifndef LXPM_TESTS_SUPPORT_CACHE_SIZE_H
#define LXPM_TESTS_SUPPORT_CACHE_SIZE_H

namespace lxpm::test {

/// For as long as it lives, the largest cache has this many bytes; 0: unknown.
class CacheSize {
public:
    explicit CacheSize(int bytes);
    ~CacheSize();
    CacheSize(const CacheSize &) = delete;
    CacheSize &operator=(const CacheSize &) = delete;

    /// How often the library asked.
    int questions() const;
};

} // namespace lxpm::test

#endif
