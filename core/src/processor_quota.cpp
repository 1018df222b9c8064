// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "processor_quota.h"

#include "text.h"

#include <algorithm>
#include <cstddef>
#include <cstdio>

namespace lxpm {

namespace {

// A directory of one of the kernel's file systems: where that is mounted, and the path in there.
struct Directory {
    const char *root;
    const char *mount;
    std::string_view path;
};

using QuotaOf = int (*)(const Directory &);

// Threads may come with little stack, so the buffers are no longer than real systems need.
std::string_view readFileOf(const Directory &directory, const char *file, std::span<char> buffer) {
    char name[1024];
    const int length = std::snprintf(name, sizeof name, "%s%s%.*s/%s", directory.root, directory.mount,
                                     static_cast<int>(directory.path.size()), directory.path.data(), file);
    const bool complete = length > 0 && static_cast<std::size_t>(length) < sizeof name;
    return complete ? readFile(name, buffer) : std::string_view{};
}

// A group may use `quota` microseconds of processor time in every `period`. No limit is written as "max" or as -1.
int wholeProcessors(long long quota, long long period) {
    if (quota <= 0 || period <= 0) {
        return noQuota;
    }
    const long long processors = quota / period + (quota % period != 0 ? 1 : 0);
    return static_cast<int>(std::min<long long>(processors, noQuota));
}

// Version 1 has a file for each of the two numbers.
int quotaOfVersion1(const Directory &group) {
    char quota[64];
    char period[64];
    return wholeProcessors(leadingNumber(readFileOf(group, "cpu.cfs_quota_us", quota)).value,
                           leadingNumber(readFileOf(group, "cpu.cfs_period_us", period)).value);
}

// Version 2 has both in one: "150000 100000".
int quotaOfVersion2(const Directory &group) {
    char buffer[64];
    std::string_view period = readFileOf(group, "cpu.max", buffer);
    const std::string_view quota = takeUpTo(' ', period);
    return wholeProcessors(leadingNumber(quota).value, leadingNumber(period).value);
}

// A group is bound by its own quota and by those of its ancestors. Inside of a container only some of them are visible,
// often none but the mounted directory itself.
int leastOnTheWayUp(QuotaOf quotaOf, Directory group) {
    int least = quotaOf(group);
    for (std::size_t slash = group.path.rfind('/'); slash != group.path.npos; slash = group.path.rfind('/')) {
        group.path.remove_suffix(group.path.size() - slash);
        least = std::min(least, quotaOf(group));
    }
    return least;
}

bool contains(std::string_view list, std::string_view wanted) {
    while (!list.empty()) {
        if (takeUpTo(',', list) == wanted) {
            return true;
        }
    }
    return false;
}

} // namespace

int processorQuota(const char *root) noexcept {
    char buffer[4096];
    std::string_view memberships = readFileOf({root, "/proc", "/self"}, "cgroup", buffer);

    // One line for each hierarchy, "4:cpu,cpuacct:/group" in version 1 and "0::/group" in version 2. Hierarchies are
    // mounted where every system manager and container runtime mounts them; where both versions are in use, version 2
    // has a directory beside those of version 1.
    int least = noQuota;
    while (!memberships.empty()) {
        std::string_view group = takeUpTo('\n', memberships);
        const std::string_view hierarchy = takeUpTo(':', group);
        const std::string_view controllers = takeUpTo(':', group);
        if (!group.starts_with('/')) {
            continue;
        }
        if (contains(controllers, "cpu")) {
            least = std::min(least, leastOnTheWayUp(quotaOfVersion1, {root, "/sys/fs/cgroup/cpu", group}));
        } else if (hierarchy == "0" && controllers.empty()) {
            for (const char *mount : {"/sys/fs/cgroup", "/sys/fs/cgroup/unified"}) {
                least = std::min(least, leastOnTheWayUp(quotaOfVersion2, {root, mount, group}));
            }
        }
    }
    return least;
}

} // namespace lxpm
