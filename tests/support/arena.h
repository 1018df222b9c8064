// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#ifndef LXPM_TESTS_SUPPORT_ARENA_H
#define LXPM_TESTS_SUPPORT_ARENA_H

#include "support/model.h"

#include <cstddef>
#include <memory>

namespace lxpm::test {

/// Whole pages between two pages that nobody may touch, and beside them the contents that they should have after a
/// call. Every byte is compared, so those that belong to no element are canaries.
class Arena {
public:
    /// An arena of at least so many bytes. Arenas are reused by the thread that made them.
    static std::shared_ptr<Arena> acquire(std::size_t bytes);

    explicit Arena(std::size_t pages);
    ~Arena();
    Arena(const Arena &) = delete;
    Arena &operator=(const Arena &) = delete;

    std::byte *begin() const { return begin_; }
    std::byte *end() const { return begin_ + size_; }
    std::size_t size() const { return size_; }

    /// An address that may not be touched.
    const void *untouchable() const { return end(); }

    /// Fills the pages with canaries: signalling NaN of the element type, all different, so that a kernel that lets
    /// padding into its arithmetic shows in the result or in the exception flags.
    void fillWithCanaries(ElementType type);

    /// The contents to be expected become the present ones.
    void expectUnchanged();

    /// The place of an address in the contents to be expected.
    std::byte *expected(const std::byte *address) const { return expected_.get() + (address - begin_); }

    bool isAsExpected() const;

    /// The first byte from `from` on that is not as expected, or the end.
    const std::byte *findDifference(const std::byte *from) const;

private:
    std::byte *mapping_;
    std::byte *begin_;
    std::size_t size_;
    std::unique_ptr<std::byte[]> expected_;
};

} // namespace lxpm::test

#endif
