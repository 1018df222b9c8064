// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// A plug-in's life: the library is loaded, runs a team, and is unloaded, over and over. The runtime's threads wait in
// code that an unloading must not take away.
//
//   unload_cycle <library>

#include <cstdio>
#include <vector>

#include <dlfcn.h>

extern "C" int ownGetNumThreads(void) {
    return 2;
}

namespace {

using AddVava = int (*)(const float *, int, int, const float *, int, int, float *, int, int, int, int);

constexpr int cycles = 50;
constexpr int length = 64;
constexpr int count = 100;

bool addsRight(AddVava add) {
    const std::vector<float> src1(length * count, 1.0f);
    const std::vector<float> src2(length * count, 2.0f);
    std::vector<float> dst(length * count);
    constexpr int stride = length * sizeof(float);
    if (add(src1.data(), stride, 4, src2.data(), stride, 4, dst.data(), stride, 4, length, count) != 0) {
        return false;
    }
    return dst == std::vector<float>(length * count, 3.0f);
}

} // namespace

int main(int argc, char **argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s <library>\n", argv[0]);
        return 2;
    }
    for (int cycle = 0; cycle < cycles; ++cycle) {
        void *library = dlopen(argv[1], RTLD_NOW | RTLD_LOCAL);
        if (library == nullptr) {
            std::fprintf(stderr, "%s\n", dlerror());
            return 1;
        }
        const auto add = reinterpret_cast<AddVava>(dlsym(library, "lxpmAdd_vava_32f"));
        if (add == nullptr || !addsRight(add)) {
            std::fprintf(stderr, "wrong in cycle %d\n", cycle);
            return 1;
        }
        dlclose(library);
    }
    return 0;
}
