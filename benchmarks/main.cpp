// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// Measures every case: the library, each peer that offers the same computation, the machine's bandwidth on the same
// bytes and, for products, its rate of multiplications and additions. A benchmark is named
// <group>/<function>/<size>/<contestant>, which is all that the report needs to know.

#include "case.h"
#include "machine.h"
#include "multiply_adds.h"
#include "peers/peers.h"
#include "triad.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cmath>
#include <cstring>
#include <memory>
#include <omp.h>
#include <optional>
#include <unistd.h>

namespace lxpm::bench {

namespace {

constexpr const char *library = "lxpm";
constexpr const char *bandwidth = "triad";
constexpr const char *rate = "multiplyAdds";

// One line on the standard error stream, if that is a terminal.
void showProgress(const std::string &what) {
    static const bool terminal = isatty(STDERR_FILENO) != 0;
    if (terminal) {
        std::fprintf(stderr, "\r\033[K%s", what.c_str());
    }
}

// One contestant in one case. The results of a peer are held against the library's before the first measurement: what
// computes something else would be no peer.
class Contest {
public:
    Contest(const Case &subject, std::string contestant, std::function<Call(const Memory &)> prepare, bool isPeer)
        : case_(subject), contestant_(std::move(contestant)), prepare_(std::move(prepare)),
          toBeChecked_(isPeer && subject.comparesResults) {}

    std::string name() const { return case_.group + "/" + case_.name + "/" + contestant_; }

    void run(benchmark::State &state) {
        showProgress(name());
        const Memory &memory = case_.setting.memory();
        omp_set_num_threads(case_.setting.threads);
        if (toBeChecked_ && !agree(resultOf(prepare_(memory), memory), resultOf(case_.prepare(memory), memory))) {
            state.SkipWithError("its results are not those of the library");
            return;
        }
        toBeChecked_ = false;

        const Call call = prepare_(memory);
        if (call() != lxpStatusOk) {
            state.SkipWithError("the call fails");
            return;
        }
        for ([[maybe_unused]] auto iteration : state) {
            call();
        }
        state.counters["objects"] = static_cast<double>(case_.objects);
    }

private:
    // Everything that a call writes; none if it fails.
    std::optional<std::string> resultOf(const Call &call, const Memory &memory) const {
        std::memset(memory.result(), 0, case_.bytesWritten);
        if (call() != lxpStatusOk) {
            return std::nullopt;
        }
        return std::string(static_cast<const char *>(memory.result()), case_.bytesWritten);
    }

    bool agree(const std::optional<std::string> &peer, const std::optional<std::string> &own) const {
        if (!peer || !own || case_.roundedElementSize == 0) {
            return peer == own;
        }
        return case_.roundedElementSize == sizeof(float) ? areClose<float>(*peer, *own) : areClose<double>(*peer, *own);
    }

    template <class T>
    bool areClose(const std::string &peer, const std::string &own) const {
        T largest = 0;
        T farthest = 0;
        for (std::size_t at = 0; at < own.size(); at += sizeof(T)) {
            T a;
            T b;
            std::memcpy(&a, peer.data() + at, sizeof(T));
            std::memcpy(&b, own.data() + at, sizeof(T));
            largest = std::max(largest, std::abs(b));
            farthest = std::max(farthest, std::abs(a - b));
        }
        return farthest <= case_.tolerance * largest;
    }

    const Case &case_;
    std::string contestant_;
    std::function<Call(const Memory &)> prepare_;
    bool toBeChecked_;
};

std::function<Call(const Memory &)> prepareKernel(const PeerKernel &kernel, const Case &subject) {
    return [&](const Memory &memory) -> Call {
        const PeerOperands operands{memory.source1(), memory.source2(), memory.result(), subject.objects,
                                    subject.setting.threads};
        return [&kernel, operands] {
            kernel.run(operands);
            return lxpStatusOk;
        };
    };
}

std::function<Call(const Memory &)> prepareTriad(const Case &subject) {
    return [&](const Memory &memory) -> Call {
        return [&] {
            triad(memory, subject.bytesRead, subject.bytesWritten, subject.setting.threads);
            return lxpStatusOk;
        };
    };
}

std::function<Call(const Memory &)> prepareMultiplyAdds(const Case &subject) {
    return [&](const Memory &) -> Call {
        return [&] {
            multiplyAdds(subject.bytesOfProducts, subject.setting.threads);
            return lxpStatusOk;
        };
    };
}

// Processor time where there is one thread, so that it does not matter what else the machine does at times.
void registerContest(Contest contest, int threads) {
    const std::string name = contest.name();
    const auto run = [shared = std::make_shared<Contest>(std::move(contest))](benchmark::State &state) {
        shared->run(state);
    };
    benchmark::internal::Benchmark *const registered = benchmark::RegisterBenchmark(name.c_str(), run);
    if (threads > 1) {
        registered->UseRealTime();
    }
}

void registerCase(const Case &subject) {
    const int threads = subject.setting.threads;
    registerContest({subject, library, subject.prepare, false}, threads);
    for (const Peer &peer : peers()) {
        const PeerKernel *kernel = subject.dense ? peer.find(subject.name) : nullptr;
        if (kernel) {
            registerContest({subject, peer.name, prepareKernel(*kernel, subject), true}, threads);
        }
    }
    registerContest({subject, bandwidth, prepareTriad(subject), false}, threads);
    if (subject.bytesOfProducts != 0) {
        registerContest({subject, rate, prepareMultiplyAdds(subject), false}, threads);
    }
}

void addContext(const Setting &setting) {
    benchmark::AddCustomContext(setting.name, std::to_string(setting.bytes / 1024) + " KiB in all, " +
                                                  std::to_string(setting.threads) +
                                                  (setting.threads == 1 ? " thread" : " threads"));
}

int runAll(int argc, char **argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 2;
    }
    const std::vector<Case> cases = allCases();
    for (const Case &subject : cases) {
        registerCase(subject);
    }
    benchmark::AddCustomContext("processor", processorName());
    benchmark::AddCustomContext("compiler", LXPM_BENCHMARKS_COMPILER);
    addContext(cacheSetting());
    addContext(memorySetting());
    const std::size_t measured = benchmark::RunSpecifiedBenchmarks();
    showProgress("");
    return measured == 0 ? 1 : 0;
}

} // namespace

} // namespace lxpm::bench

int main(int argc, char **argv) {
    return lxpm::bench::runAll(argc, argv);
}
