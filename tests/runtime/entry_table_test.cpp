// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// Every export is a jump through its own slot of a writable table, in the order of the list: an implementation can be
// exchanged without touching its callers.

#include "support/exports.h"
#include "support/memory_map.h"

#include <lxpm.h>

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <cstring>
#include <set>

#include <dlfcn.h>

namespace lxpm::test {

namespace {

/// endbr64; jmp *slot(%rip)
constexpr std::array<unsigned char, 6> stubCode = {0xf3, 0x0f, 0x1e, 0xfa, 0xff, 0x25};

const unsigned char *entryOf(const std::string &name) {
    return static_cast<const unsigned char *>(dlsym(RTLD_DEFAULT, name.c_str()));
}

/// The slot that a stub jumps through.
void **slotOf(const unsigned char *entry) {
    std::int32_t distance;
    std::memcpy(&distance, entry + stubCode.size(), sizeof distance);
    return reinterpret_cast<void **>(reinterpret_cast<std::uintptr_t>(entry) + stubCode.size() + sizeof distance +
                                     distance);
}

TEST(EntryTable, EveryExportIsAJumpThroughItsSlot) {
    for (const std::string &name : exportNames()) {
        const unsigned char *entry = entryOf(name);
        ASSERT_NE(entry, nullptr) << name << " is not exported";
        EXPECT_EQ(std::memcmp(entry, stubCode.data(), stubCode.size()), 0) << name << " is more than a jump";
    }
}

TEST(EntryTable, SlotsFollowTheOrderOfTheList) {
    void **const first = slotOf(entryOf(exportNames().front()));
    for (std::size_t index = 0; index < exportNames().size(); ++index) {
        EXPECT_EQ(slotOf(entryOf(exportNames()[index])), first + index) << exportNames()[index];
    }
}

TEST(EntryTable, SlotsAreWritableAndLeadToCodeOfTheirOwn) {
    std::set<void *> implementations;
    for (const std::string &name : exportNames()) {
        void **slot = slotOf(entryOf(name));
        EXPECT_EQ(permissionsAt(slot), "rw-p") << name;
        EXPECT_EQ(permissionsAt(*slot), "r-xp") << name;
        EXPECT_TRUE(implementations.insert(*slot).second) << name << " shares its implementation";
    }
}

LxpStatus another(const float *, int, float, float *, int, int) {
    return lxpStatusConvergeErr;
}

TEST(EntryTable, AnImplementationCanBeExchanged) {
    void **slot = slotOf(entryOf("lxpmAdd_vc_32f"));
    void *const own = *slot;
    const float src = 1;
    float dst = 0;

    *slot = reinterpret_cast<void *>(&another);
    EXPECT_EQ(lxpmAdd_vc_32f(&src, 4, 2, &dst, 4, 1), lxpStatusConvergeErr);
    EXPECT_EQ(dst, 0);

    *slot = own;
    EXPECT_EQ(lxpmAdd_vc_32f(&src, 4, 2, &dst, 4, 1), lxpStatusOk);
    EXPECT_EQ(dst, 3);
}

} // namespace

} // namespace lxpm::test
