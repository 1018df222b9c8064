// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// Many callers at once: threads of the application, and a team of the application's own.

#include "checks/parallel_sizes.h"
#include "checks/placements.h"
#include "support/call.h"
#include "support/expect_sound.h"
#include "support/thread_count.h"

#include <gtest/gtest.h>

#include <barrier>
#include <thread>
#include <vector>

#include <omp.h>

namespace lxpm::test {

namespace {

void expectAllSound(const std::vector<Report> &reports) {
    for (const Report &report : reports) {
        expectSound(report);
    }
}

/// One call on a serial path and, of an array export, one that starts a team.
void callOnce(const Export &item, Report &report) {
    const Model &model = item.model;
    const Shape &shape = model.axes->small[model.axes->small.size() / 2];
    std::vector<int> counts = {1};
    if (model.parallel) {
        counts.push_back(firstParallelCount(model, shape, true) + 1);
    }
    for (const int count : counts) {
        Call call(item, shape, count, gappedIn(model, 0));
        call.fill(distinctValues(model.type));
        call.verifyResults(report);
    }
}

TEST(Concurrency, ApplicationThreadsCallDifferentExportsAtOnce) {
    constexpr std::size_t callers = 8;
    setThreadCount(2);
    const std::vector<Export> &exports = familyExports();
    std::vector<Report> reports(callers);
    std::barrier start(callers);
    std::vector<std::thread> threads;
    for (std::size_t caller = 0; caller < callers; ++caller) {
        threads.emplace_back([&, caller] {
            start.arrive_and_wait();
            // The callers walk through the list one eighth apart.
            const std::size_t first = caller * exports.size() / callers;
            for (std::size_t step = 0; step < exports.size() && !reports[caller].isFull(); ++step) {
                callOnce(exports[(first + step) % exports.size()], reports[caller]);
            }
        });
    }
    for (std::thread &thread : threads) {
        thread.join();
    }
    expectAllSound(reports);
}

TEST(Concurrency, ApplicationThreadsCallTheSameExportAtOnce) {
    constexpr int callers = 8;
    constexpr int repetitions = 20;
    setThreadCount(3);
    std::vector<Report> reports(callers);
    std::barrier start(callers);
    std::vector<std::thread> threads;
    for (int caller = 0; caller < callers; ++caller) {
        threads.emplace_back([&, caller] {
            start.arrive_and_wait();
            for (int repetition = 0; repetition < repetitions; ++repetition) {
                callOnce(findExport("lxpmSub_mama_64f"), reports[caller]);
            }
        });
    }
    for (std::thread &thread : threads) {
        thread.join();
    }
    expectAllSound(reports);
}

TEST(Concurrency, TeamsOfTheApplicationCall) {
    constexpr int members = 3;
    setThreadCount(2);
    std::vector<Report> reports(members);
#pragma omp parallel num_threads(members)
    {
        const int member = omp_get_thread_num();
        // A member that the runtime did not grant leaves its share to nobody; the others must be right all the same.
        for (const Export &item : familyExports()) {
            if (!reports[member].isFull()) {
                callOnce(item, reports[member]);
            }
        }
    }
    std::erase_if(reports, [](const Report &report) { return report.cases() == 0; });
    ASSERT_FALSE(reports.empty());
    expectAllSound(reports);
}

} // namespace

} // namespace lxpm::test
