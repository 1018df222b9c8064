// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include <dlfcn.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using Count = int (*)();

Count countOf(void *library) {
    return reinterpret_cast<Count>(dlsym(library, "ownGetNumThreads"));
}

// What was learnt at the first loading is still known after a fork that happened while the library was unloaded.
TEST(Unloading, ForksAreStillNoticed) {
    void *library = dlopen(LIBRARY, RTLD_NOW);
    ASSERT_NE(library, nullptr) << dlerror();
    const Count count = countOf(library);
    ASSERT_NE(count, nullptr);
    ASSERT_GE(count(), 1);
    ASSERT_EQ(dlclose(library), 0);

    const pid_t child = fork();
    if (child == 0) {
        void *again = dlopen(LIBRARY, RTLD_NOW | RTLD_NOLOAD);
        _exit(again != nullptr && countOf(again)() == 1 ? 0 : 1);
    }
    int status = -1;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
}

} // namespace
