// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// What lxpm does for somebody with a triangle mesh: each step computes on the mesh's own memory, is timed, and is held
// against a plain loop.

#include "mesh_reader.h"
#include "options.h"
#include "report.h"
#include "steps/step.h"

#include <algorithm>
#include <iostream>

namespace lxpm::mesh {

namespace {

using Clock = std::chrono::steady_clock;

Measurement measure(Step &step, int repeat, Progress &progress) {
    Seconds fastest = Seconds::max();
    for (int i = 0; i < repeat; ++i) {
        progress.show(step.name(), i, repeat);
        const Clock::time_point begin = Clock::now();
        const LxpStatus status = step.compute();
        fastest = std::min<Seconds>(fastest, Clock::now() - begin);
        if (status != lxpStatusOk) {
            throw std::runtime_error(std::string(step.function()) + " returned " + std::to_string(status));
        }
    }
    return {step.name(), step.function(), step.objects(), fastest, step.agrees()};
}

void finishOutput() {
    if (!std::cout.flush()) {
        throw std::runtime_error("cannot write to the standard output");
    }
}

int run(const Options &options, Clock::time_point programBegin) {
    Progress progress;
    Scene scene(readMesh(options.input, progress));

    constexpr std::unique_ptr<Step> (*steps[])(Scene &) = {centrePoints, centreVertices,      edgeVectors,
                                                           displacement, boxesAroundVertices, edgeQuadrics};
    std::vector<Measurement> measurements;
    Seconds inLibrary{};
    for (const auto makeStep : steps) {
        const std::unique_ptr<Step> step = makeStep(scene);
        measurements.push_back(measure(*step, options.repeat, progress));
        inLibrary += measurements.back().time;
    }
    progress.clear();

    std::cout << options.input << ": " << grouped(scene.mesh.vertices.size()) << " vertices, "
              << grouped(scene.mesh.triangles.size()) << " triangles, " << grouped(scene.edges.size()) << " edges\n\n";
    printTable(std::cout, measurements);
    std::cout << "\nlibrary: " << fixed(inLibrary.count() * 1e3, 2) << " ms for one run of each step (fastest of "
              << options.repeat << "); whole program: " << fixed(Seconds(Clock::now() - programBegin).count() * 1e3, 1)
              << " ms\n";
    finishOutput();
    return std::all_of(measurements.begin(), measurements.end(), [](const Measurement &m) { return m.agrees; }) ? 0 : 1;
}

} // namespace

} // namespace lxpm::mesh

int main(int argc, char **argv) {
    using namespace lxpm::mesh;
    const auto begin = std::chrono::steady_clock::now();
    try {
        const Options options = parseOptions(argc, argv);
        if (options.help) {
            std::cout << usage;
            finishOutput();
            return 0;
        }
        return run(options, begin);
    } catch (const UsageError &error) {
        std::cerr << "mesh: " << error.what() << "\nTry 'mesh --help'.\n";
        return 2;
    } catch (const std::exception &error) {
        std::cerr << "mesh: " << error.what() << '\n';
        return 1;
    }
}
